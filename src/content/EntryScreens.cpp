// SPDX-License-Identifier: MIT
#include "content/EntryScreens.h"

#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto StatusText = "frmStatus.txtMessage"_L1;
constexpr qsizetype LongestStatus = 140;

bool Has(const char* control) {
    return *control != '\0';
}

} // namespace

EntryScreens::EntryScreens(App& app) : m_app(app) {
    for (const ContentScreen& screen : ContentScreens())
        Register(screen);
    m_listener = app.controls.AddListener([this](const Control& control, Controls::Change change, int) {
        if (control.name == StatusText && change == Controls::Change::Text)
            CountCharacters();
    });
    CountCharacters();
}

EntryScreens::~EntryScreens() {
    m_app.controls.RemoveListener(m_listener);
}

void EntryScreens::Register(const ContentScreen& screen) {
    const QString form = QString::fromLatin1(screen.entryForm);
    m_app.commands.Add(form + u".cmdSave_Click"_s, "cmdSave_Click",
                       [this, &screen] { cmdSave_Click(screen); });
    m_app.commands.Add(form + u".cmdCancel_Click"_s, "cmdCancel_Click",
                       [this, form] { m_app.platform.Dialogs().CloseForm(form); });
}

void EntryScreens::Show(const ContentScreen& screen, const ContentList& list, const ContentFields* edited) {
    strMode = edited ? u"EDIT"_s : u"ADD"_s;
    m_list = list;
    m_edited = edited ? *edited : ContentFields();
    ShowFields(screen, m_edited);
    m_app.platform.Dialogs().ShowModal(QString::fromLatin1(screen.entryForm));
    ShowFields(screen, {});
    m_list.reset();
}

// The subject stands in the file as it does in the list; here it reads as it was typed.
void EntryScreens::ShowFields(const ContentScreen& screen, const ContentFields& fields) {
    Controls& controls = m_app.controls;
    if (Has(screen.subject))
        controls.SetText(QLatin1StringView(screen.subject), UnescapeLine(fields.subject));
    controls.SetText(QLatin1StringView(screen.body), fields.text);
    if (!Has(screen.alternative))
        return;
    controls.SetText(QLatin1StringView(screen.alternative), fields.nonHTML);
    controls.SetTicked(QLatin1StringView(screen.useAlternative), fields.usesNonHTML);
}

ContentFields EntryScreens::FieldsOn(const ContentScreen& screen) const {
    const Controls& controls = m_app.controls;
    ContentFields fields;
    if (Has(screen.subject))
        fields.subject = controls.Text(QLatin1StringView(screen.subject));
    fields.text = controls.Text(QLatin1StringView(screen.body));
    if (Has(screen.alternative)) {
        fields.nonHTML = controls.Text(QLatin1StringView(screen.alternative));
        fields.usesNonHTML = controls.Ticked(QLatin1StringView(screen.useAlternative));
    }
    return fields;
}

void EntryScreens::cmdSave_Click(const ContentScreen& screen) {
    if (m_list && m_list->SaveEntry(FieldsOn(screen), strMode == u"EDIT" ? &m_edited : nullptr))
        m_app.platform.Dialogs().CloseForm(QString::fromLatin1(screen.entryForm));
}

void EntryScreens::CountCharacters() {
    m_app.controls.SetText(
        "frmStatus.lblStatusCharactersRemaining"_L1,
        u"%1 characters remaining"_s.arg(LongestStatus - m_app.controls.Text(StatusText).size()));
}

} // namespace qlm
