// SPDX-License-Identifier: MIT
#include "content/ListScreens.h"

#include "content/ContentLists.h"
#include "content/Preview.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

#include <QScopeGuard>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The key of an order option is the control's own name.
QString KeyOf(const char* option) {
    return QString::fromLatin1(option).section(u'.', -1);
}

QString CommandOf(const char* control, const char* event) {
    return QString::fromLatin1(control) + QString::fromLatin1(event);
}

constexpr int DeleteKey = 46;
constexpr int ReturnKey = 13;
constexpr int InsertKey = 45;

} // namespace

ListScreens::ListScreens(App& app) : m_app(app), m_entries(app) {
    for (const ContentScreen& screen : ContentScreens())
        Register(screen);
    // By whatever means another row is chosen.
    m_listener = app.controls.AddListener([this](const Control& control, Controls::Change change, int) {
        if (m_screen && control.name == Box() && change == Controls::Change::Selected) {
            FillDetails();
            EnableMoves();
        }
    });
}

ListScreens::~ListScreens() {
    m_app.controls.RemoveListener(m_listener);
}

void ListScreens::Register(const ContentScreen& screen) {
    Commands& commands = m_app.commands;
    const QString form = QString::fromLatin1(screen.form) + u'.';
    auto click = [&](const QString& control, auto handler) { commands.Add(control + u"_Click"_s, handler); };
    click(QString::fromLatin1(screen.editList), [this, &screen] { OpenScreen(screen); });
    click(QString::fromLatin1(screen.add), [this] { Add(); });
    click(QString::fromLatin1(screen.edit), [this] { Edit(); });
    click(QString::fromLatin1(screen.remove), [this] { Delete(); });
    if (*screen.preview)
        click(QString::fromLatin1(screen.preview), [this] { Preview(); });
    click(form + QLatin1StringView(ContentUndoDelete), [this] { UndoDelete(); });
    click(form + QLatin1StringView(ContentMoveUp), [this] { Move(Direction::Up); });
    click(form + QLatin1StringView(ContentMoveDown), [this] { Move(Direction::Down); });
    click(form + QLatin1StringView(ContentClose),
          [this, &screen] { m_app.platform.Dialogs().CloseForm(QString::fromLatin1(screen.form)); });
    commands.Add(CommandOf(screen.list, "_DblClick"), [this] { Edit(); });
    commands.Add(CommandOf(screen.list, "_KeyDown"), [this](int key) { KeyDown(key); });
    commands.Add(CommandOf(screen.list, "_DragDrop"), [this](int place) { Drop(place); });
    commands.Add(CommandOf(screen.list, "_ItemCheck"),
                 [this](int row) { ChangeSelectedState(row, m_app.controls.RowTicked(Box(), row)); });
}

QByteArray ListScreens::ControlNamed(const char* name) const {
    return QByteArray(m_screen->form) + '.' + name;
}

void ListScreens::Open(ContentKind kind) {
    for (const ContentScreen& screen : ContentScreens())
        if (screen.kind == kind)
            OpenScreen(screen);
}

void ListScreens::OpenScreen(const ContentScreen& screen) {
    if (m_screen)
        return;
    auto& lists = m_app.Get<ContentLists>();
    m_list = lists.Of(screen.kind);
    m_section = lists.SectionOf(screen.kind);
    m_screen = &screen;
    const auto closed = qScopeGuard([this] {
        m_screen = nullptr;
        m_list.reset();
        m_deleted.clear();
    });
    RestoreOrder();
    m_app.controls.SetEnabled(QLatin1StringView(ControlNamed(ContentUndoDelete)), false);
    FillList();
    m_app.platform.Dialogs().ShowModal(QString::fromLatin1(screen.form));
    StoreOrder();
    // A window that is closed keeps no rows.
    m_app.controls.SetItems(Box(), {});
    lists.FillMainList(screen.kind);
}

// In order, unless the store says otherwise.
void ListScreens::RestoreOrder() {
    const SettingsStore& settings = m_app.platform.Settings();
    const bool randomize = ToBoolean(settings.GetSetting(m_section, KeyOf(m_screen->randomize), u"False"_s));
    m_app.controls.SetTicked(QLatin1StringView(m_screen->sendInOrder), !randomize);
    m_app.controls.SetTicked(QLatin1StringView(m_screen->randomize), randomize);
}

void ListScreens::StoreOrder() {
    SettingsStore& settings = m_app.platform.Settings();
    for (const char* option : {m_screen->sendInOrder, m_screen->randomize})
        settings.SaveSetting(m_section, KeyOf(option),
                             FromBoolean(m_app.controls.Ticked(QLatin1StringView(option))));
    m_app.Get<SettingsFields>().Sync();
}

void ListScreens::FillList() {
    const QString error = m_app.diagnostics.Trap(m_screen->fillTag, [this] { ShowRows(m_list->Lines(), 0); });
    OfferToClear(error);
}

// What has just been written needs no reading.
void ListScreens::FillWith(const QStringList& lines, int chosenRow) {
    OfferToClear(m_app.diagnostics.Trap(m_screen->fillTag, [&] { ShowRows(lines, chosenRow); }));
}

void ListScreens::OfferToClear(const QString& error) {
    if (error.isEmpty() || !*m_screen->clearOffer ||
        !m_app.AskYesNo(QString::fromUtf16(m_screen->clearOffer)))
        return;
    m_list->File().Clear();
    FillList();
}

// A line without its marker is told of when all others show.
void ListScreens::ShowRows(const QStringList& lines, int chosenRow) {
    m_app.controls.SetItems(Box(), {});
    const FilledRows filled = RowsOf(m_list->Kind(), lines);
    QStringList texts;
    std::vector<bool> ticks;
    for (const ListRow& row : filled.rows) {
        texts.append(row.text);
        ticks.push_back(row.ticked);
    }
    if (texts.isEmpty())
        texts.append(QString::fromUtf16(m_screen->placeholder) + u"..."_s);
    m_app.controls.SetItems(Box(), texts, ticks);
    m_linesAtHand = &lines;
    const auto gone = qScopeGuard([this] { m_linesAtHand = nullptr; });
    m_app.controls.SetSelected(Box(), chosenRow);
    if (filled.brokenLine > 0)
        throw std::runtime_error("Line " + std::to_string(filled.brokenLine) + " of the list has no \"" +
                                 RowMarkerOf(m_list->Kind()).toStdString() + '"');
}

void ListScreens::FillDetails() {
    m_app.diagnostics.Trap("FillDetails", [this] {
        ContentFields fields;
        if (*m_screen->text && !IsNothingSelected())
            fields = DetailsOf(m_list->Kind(), m_linesAtHand ? *m_linesAtHand : m_list->Lines(),
                               m_app.controls.SelectedText(Box()))
                         .value_or(ContentFields());
        if (*m_screen->text)
            m_app.controls.SetText(QLatin1StringView(m_screen->text), fields.text);
        if (!*m_screen->nonHTML)
            return;
        m_app.controls.SetText(QLatin1StringView(m_screen->nonHTML), fields.nonHTML);
        m_app.controls.SetText(QLatin1StringView(m_screen->usesNonHTML),
                               fields.usesNonHTML ? u"ON"_s : u"OFF"_s);
    });
}

void ListScreens::EnableMoves() {
    const int row = m_app.controls.Selected(Box());
    const int last = static_cast<int>(m_app.controls.Items(Box()).size()) - 1;
    m_app.controls.SetEnabled(QLatin1StringView(ControlNamed(ContentMoveUp)), row > 0);
    m_app.controls.SetEnabled(QLatin1StringView(ControlNamed(ContentMoveDown)), row >= 0 && row < last);
}

bool ListScreens::IsNothingSelected() const {
    const QString row = m_app.controls.SelectedText(Box());
    return m_app.controls.Selected(Box()) < 0 || Has(row, QString::fromUtf16(m_screen->placeholder)) ||
           (*m_screen->noEntry && Has(row, QString::fromUtf16(m_screen->noEntry)));
}

bool ListScreens::RefuseWithoutEntry(const char16_t* words) {
    if (!IsNothingSelected())
        return false;
    m_app.ShowMessage(QString::fromUtf16(words));
    return true;
}

void ListScreens::Add() {
    m_entries.Show(*m_screen, *m_list, nullptr);
    FillList();
}

void ListScreens::Edit() {
    if (RefuseWithoutEntry(m_screen->noEdit))
        return;
    const QString row = m_app.controls.SelectedText(Box());
    ContentFields edited;
    if (m_list->Kind() == ContentKind::Status)
        edited.text = m_list->GetCompleteStatusFromList(row);
    else
        edited = DetailsOf(m_list->Kind(), m_list->Lines(), row).value_or(ContentFields());
    if (*m_screen->subject)
        edited.subject = row;
    const QString form = QString::fromLatin1(m_screen->form);
    m_app.platform.Dialogs().SetFormVisible(form, false);
    m_entries.Show(*m_screen, *m_list, &edited);
    m_app.platform.Dialogs().SetFormVisible(form, true);
    FillList();
}

void ListScreens::Delete() {
    if (RefuseWithoutEntry(m_screen->noDelete) || !m_app.AskYesNo(u"Are you sure?"_s))
        return;
    m_app.diagnostics.Trap(m_screen->deleteTag, [this] {
        QStringList lines = m_list->Lines();
        const std::vector<RemovedLine> removed =
            RemoveRow(m_list->Kind(), lines, m_app.controls.SelectedText(Box()));
        m_list->File().Rewrite(lines);
        m_deleted.push_back(removed);
        m_app.controls.SetEnabled(QLatin1StringView(ControlNamed(ContentUndoDelete)), true);
        FillWith(lines, 0);
    });
}

void ListScreens::UndoDelete() {
    if (m_deleted.empty())
        return;
    const std::vector<RemovedLine>& removed = m_deleted.back();
    QStringList lines = m_list->Lines();
    RestoreLines(lines, removed);
    m_list->File().Rewrite(lines);
    const QString row =
        removed.empty() ? QString() : RowOf(m_list->Kind(), removed.front().line).value_or(QString());
    m_deleted.pop_back();
    m_app.controls.SetEnabled(QLatin1StringView(ControlNamed(ContentUndoDelete)), !m_deleted.empty());
    FillWith(lines, 0);
    m_app.controls.SetSelected(Box(), static_cast<int>(m_app.controls.Items(Box()).indexOf(row)));
}

void ListScreens::Move(Direction direction) {
    const bool isUp = direction == Direction::Up;
    m_app.diagnostics.Trap(isUp ? m_screen->moveUpTag : m_screen->moveDownTag, [&] {
        const int row = m_app.controls.Selected(Box());
        QStringList lines = m_list->Lines();
        MoveRow(m_list->Kind(), lines, m_app.controls.SelectedText(Box()), direction);
        m_list->File().Rewrite(lines);
        FillWith(lines, isUp ? row - 1 : row + 1);
    });
}

// The chosen row has been dragged to another one's place.
void ListScreens::Drop(int place) {
    const int row = m_app.controls.Selected(Box());
    if (IsNothingSelected() || place == row)
        return;
    QStringList lines = m_list->Lines();
    MoveRowTo(m_list->Kind(), lines, row, place);
    m_list->File().Rewrite(lines);
    FillWith(lines, place);
}

// Boxes show what the file says: of rows with one text the first is meant.
void ListScreens::ChangeSelectedState(int row, bool ticked) {
    const QString error = m_app.diagnostics.Trap(m_screen->tickTag, [&] {
        QStringList lines = m_list->Lines();
        const QString text = m_app.controls.Items(Box()).value(row);
        TickRow(m_list->Kind(), lines, text, ticked);
        m_list->File().Rewrite(lines);
        for (const auto& [place, isTicked] : TicksOf(m_list->Kind(), lines, text))
            m_app.controls.SetRowTicked(Box(), place, isTicked);
    });
    if (!error.isEmpty())
        m_app.controls.SetRowTicked(Box(), row, !ticked);
}

void ListScreens::Preview() {
    if (RefuseWithoutEntry(m_screen->noPreview))
        return;
    m_app.Get<qlm::Preview>().Show(QString::fromUtf16(m_screen->previewKind),
                                   m_app.controls.Text(QLatin1StringView(m_screen->text)),
                                   qlm::Preview::As::Markup);
}

void ListScreens::KeyDown(int key) {
    if (key == DeleteKey)
        Delete();
    else if (key == ReturnKey)
        Edit();
    else if (key == InsertKey)
        Add();
}

} // namespace qlm
