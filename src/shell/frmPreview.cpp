// SPDX-License-Identifier: MIT
#include "shell/frmPreview.h"

#include "core/App.h"
#include "shell/FormParts.h"
#include "shell/WindowDialogs.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QScreen>
#include <QShortcut>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QSize StartingSize(640, 480);
}

void frmPreview::Build(Form& form) {
    auto& preview = static_cast<frmPreview&>(form);
    preview.m_view = preview.m_dialogs.ViewOf(BrowserName::webPreview);
    auto* page = Named(preview.m_view ? preview.m_view.data() : new QWidget, "webPreview"_L1);
    page->setAccessibleName(u"Page"_s);
    auto* column = new QVBoxLayout(&form);
    column->addWidget(page, 1);
    column->addWidget(NewButtonRow({"cmdClose"_L1}));
    page->show();
    // The page keeps the keys to itself that are typed in it.
    auto* leave = new QShortcut(QKeySequence::Cancel, &form);
    QObject::connect(leave, &QShortcut::activated, &form, [&form] { form.reject(); });
    form.resize(StartingSize.boundedTo(form.screen()->availableSize()));
}

// The view belongs to who gave it.
frmPreview::~frmPreview() {
    if (!m_view)
        return;
    m_view->hide();
    m_view->setParent(nullptr);
}

} // namespace qlm
