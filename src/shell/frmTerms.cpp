// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QTextBrowser>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

class WordsAlone : public QTextBrowser {
public:
    QVariant loadResource(int, const QUrl&) override { return {}; }
};

} // namespace

void BuildTerms(Form& form) {
    auto* terms = Named(new WordsAlone, "txtTerms"_L1);
    terms->setOpenLinks(false);
    // Tab leaves the page; there is nothing to follow in it.
    terms->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* column = new QVBoxLayout(&form);
    column->addWidget(terms, 1);
    column->addWidget(NewButtonRow({"cmdClose"_L1}));
    form.resize(520, 400);
}

} // namespace qlm
