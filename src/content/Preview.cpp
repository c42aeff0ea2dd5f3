// SPDX-License-Identifier: MIT
#include "content/Preview.h"

#include "core/App.h"

#include <QScopeGuard>
#include <QUrl>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Form = u"frmPreview"_s;
const QString TextMark = u"REPLACETHISTEXT"_s;
// A file of the disk is there at once, or not at all.
constexpr int PageSeconds = 10;

// The buttons that preview a text where it is written.
struct ButtonRow {
    const char* button;
    QLatin1StringView text;
    const char16_t* kind;
    Preview::As as = Preview::As::Markup;
};
constexpr ButtonRow Buttons[] = {
    {"picMsgPreview", "txtMsgMessage"_L1, u"MESSAGE"},
    {"picAccMsgPreview", "txtAcceptMessage"_L1, u"MESSAGE"},
    {"picAccComPreview", "txtAcceptComment"_L1, u"MESSAGE"},
    {"picAccComNonHTMLPreview", "txtAcceptCommentNonHTML"_L1, u"MESSAGE"},
    {"picBulPreview", "txtBulMessage"_L1, u"BULLETIN"},
    {"picComPreview", "txtComment"_L1, u""},
    {"picComPreviewNonHTML", "txtCommentNonHTML"_L1, u"", Preview::As::Text},
    {"frmMessage.picBulPreview", "frmMessage.txtMessage"_L1, u"MESSAGE"},
    {"frmBulletin.picBulPreview", "frmBulletin.txtMessage"_L1, u"BULLETIN"},
};

BrowserControl& WebPreview(const App& app) {
    return app.platform.Browser(BrowserName::webPreview);
}

} // namespace

Preview::Preview(App& app) : m_app(app) {
    for (const ButtonRow& row : Buttons)
        app.commands.Add(QString::fromLatin1(row.button) + u"_Click"_s, [this, &row] {
            Show(QString::fromUtf16(row.kind), m_app.controls.Text(row.text), row.as);
        });
    app.commands.Add(u"frmPreview.cmdClose_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(Form); });
}

void Preview::Show(const QString& kind, const QString& text, As as) {
    // The message loop turns while the template comes.
    if (m_isOpen)
        return;
    m_isOpen = true;
    const auto closed = qScopeGuard([this] {
        m_isOpen = false;
        WebPreview(m_app).Navigate(u"about:blank"_s);
    });
    strPreviewKind = kind;
    strPreviewText = text;
    blnPreviewAsText = as == As::Text;
    if (!blnPreviewAsText)
        strPreviewText.replace(u"\r\n"_s, u"<br>"_s).replace(u'\n', u"<br>"_s);
    Form_Load();
    m_app.platform.Dialogs().ShowModal(Form);
}

// A bulletin's page serves messages too, the other one comments.
QString Preview::TemplateFile() const {
    const bool isLetter = strPreviewKind == u"MESSAGE" || strPreviewKind == u"BULLETIN";
    return m_app.InstalledFile(u"Preview Templates/"_s +
                               (isLetter ? u"previewtemplateBUL.htm"_s : u"previewtemplateMSG.htm"_s));
}

void Preview::Form_Load() {
    BrowserControl& browser = WebPreview(m_app);
    browser.SetSilent(true);
    browser.events.contextMenu = [] { return false; };
    const QString error = m_app.diagnostics.Trap("Form_Load - frmPreview", [this] { LoadTemplate(); });
    if (!error.isEmpty())
        m_app.diagnostics.Trap("Form_Load - frmPreview", [this] { ShowBareText(); });
}

void Preview::Open(const QString& address) {
    BrowserControl& browser = WebPreview(m_app);
    browser.Navigate(address);
    m_app.waiting.Turn();
    const auto isLoading = [&browser] {
        return browser.Busy() || !browser.Document() || !browser.Document().Body();
    };
    if (!m_app.waiting.WaitWhile(isLoading, PageSeconds))
        throw std::runtime_error("The page of the preview did not load: \"" + address.toStdString() + '"');
}

void Preview::LoadTemplate() {
    const QString path = TemplateFile();
    if (!m_app.files.FileExists(path))
        throw FileError("The template of the preview is missing: \"" + path.toStdString() + '"');
    Open(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    const Element body = WebPreview(m_app).Document().Body();
    const QString page = blnPreviewAsText ? body.InnerText() : body.InnerHTML();
    const qsizetype place = page.indexOf(TextMark);
    if (place < 0)
        throw std::runtime_error("The template of the preview has no place for the text: \"" +
                                 path.toStdString() + '"');
    const QString filled = page.left(place) + strPreviewText + page.mid(place + TextMark.size());
    if (blnPreviewAsText)
        body.SetInnerText(filled);
    else
        body.SetInnerHTML(filled);
}

void Preview::ShowBareText() {
    Open(u"about:blank"_s);
    WebPreview(m_app).Document().Body().SetInnerHTML(blnPreviewAsText ? strPreviewText.toHtmlEscaped()
                                                                      : strPreviewText);
}

} // namespace qlm
