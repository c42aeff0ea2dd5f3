// SPDX-License-Identifier: MIT
#include "shell/frmTerms.h"

#include "shell/FormParts.h"

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

frmTerms::frmTerms(const FormContext& context) : Form(context, u"frmTerms"_s, u"Terms of Service"_s) {
    auto* terms = Named(new WordsAlone, "txtTerms"_L1, u"Terms of Service"_s);
    terms->setOpenLinks(false);
    // Tab leaves the page; there is nothing to follow in it.
    terms->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* column = new QVBoxLayout(this);
    column->addWidget(terms, 1);
    column->addWidget(NewButtonRow({NewButton("cmdClose"_L1, u"&Close"_s)}));
    resize(520, 400);
}

} // namespace qlm
