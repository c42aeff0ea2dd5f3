// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace qlm {

enum class ControlType {
    Label,
    TextBox,
    ManyLineBox,
    CheckBox,
    OptionButton,
    ComboBox,
    ListBox,
    Button,
    MenuItem,
    Panel,
    Pointer // of the mouse
};

enum class PointerShape { Usual, Busy };

// How far a run is through its list; with a total of 0 there is none to tell of.
struct Progress {
    qint64 number = 0;
    qint64 total = 0;
};

// The pause between two sends: whether there is one, and while it lasts, what is left of it.
struct TimeDelay {
    bool isOn = false;
    std::optional<qint64> secondsLeft;
};

// A row of the table of controls, and all that is said about the control: no form says it again.
struct ControlRow {
    const char* name;
    ControlType type;
    // What stands on it, or on the label in front of an input, with its letter ("&Add").
    const char16_t* caption = u"";
    // Where the value is stored: "" not at all, "General", "Field Entries" shared by all accounts, or a kind
    // of data with its own global-or-per-account flag ("FriendRequest").
    const char* kind = "";
    const char* key = "";       // the settings key where it differs from the name
    const char* group = "";     // options of one group exclude one another
    const char16_t* text = u""; // what an input holds at first
    bool ticked = false;
    QStringList (*choices)() = nullptr; // of a combo box whose choices never change
    const char16_t* toolTip = u"";
    const char16_t* spoken = u""; // what a screen reader calls it, where the caption doesn't say enough
    const char16_t* hint = u"";   // stands in an empty input
    const char16_t* whatsThis = u"";
    const char* image = "";   // of a button that bears a drawing
    const char* command = ""; // of a button that shares one; usually its name + "_Click"
    bool begins = false;      // a run or a fetch: a double click is one click

    // The row with that said, too.
    ControlRow Kept(const char* kindOfData, const char* settingsKey = "") const;
    ControlRow In(const char* groupName) const;
    ControlRow Holds(const char16_t* firstText) const;
    ControlRow Ticked() const;
    ControlRow Choices(QStringList (*items)()) const;
    ControlRow Tip(const char16_t* words) const;
    ControlRow Spoken(const char16_t* words) const;
    ControlRow Hint(const char16_t* words) const;
    ControlRow Explains(const char16_t* words) const;
    ControlRow Picture(const char* drawing) const;
    ControlRow Runs(const char* sharedCommand) const;
    ControlRow Begins() const;

    // The caption without its letter.
    QString PlainCaption() const;
    // What is said of it to a screen reader; empty where its own text says it.
    QString SpokenName() const;
    // What a click on it runs.
    QString Command() const;
};

// One named input or label that the logic reads or writes.
struct Control {
    QLatin1StringView name;
    ControlType type = ControlType::Label;
    const ControlRow* row = nullptr; // what the table says of it
    QLatin1StringView group;         // option buttons of one group exclude one another
    QString text; // caption of a label, button, box or item; content of a text or combo box
    bool ticked = false;
    QStringList items;          // rows of a list or combo box
    std::vector<bool> rowTicks; // of a list whose rows have boxes; rows beyond it have none
    int selected = -1;          // row; -1 none
    bool enabled = true;
    bool visible = true;
    QString toolTip;
};

// All controls of the program by name; those of a form other than the main window as
// "frmInteken.lstAccounts". The truth stands here: widgets show it and write the user's input into it.
class Controls {
public:
    enum class Change {
        Text,
        Ticked,
        Items,
        RowAdded,
        RowRemoved,
        RowTicked,
        Selected,
        Enabled,
        Visible,
        ToolTip,
        Pointer,
        Focus
    };
    // row is the row that was added, removed or ticked.
    using Listener = std::function<void(const Control&, Change, int row)>;

    Controls();

    static const std::vector<ControlRow>& Table();
    // Throws std::logic_error on a name that the table doesn't hold.
    static const ControlRow& RowNamed(QLatin1StringView name);

    bool Has(QLatin1StringView name) const { return m_index.contains(name); }
    const Control& operator[](QLatin1StringView name) const;
    const std::vector<Control>& All() const { return m_controls; }

    QString Text(QLatin1StringView name) const { return (*this)[name].text; }
    bool Ticked(QLatin1StringView name) const { return (*this)[name].ticked; }
    int Selected(QLatin1StringView name) const { return (*this)[name].selected; }
    const QStringList& Items(QLatin1StringView name) const { return (*this)[name].items; }
    // Copies the rows of a list; an empty list gives the empty array, which is one entry "".
    void ListBoxToArray(QLatin1StringView name, QStringList& array) const;
    // Text of the selected row; empty when there is none.
    QString SelectedText(QLatin1StringView name) const;
    bool RowTicked(QLatin1StringView name, int row) const;

    void SetText(QLatin1StringView name, const QString& text);
    // Ticking an option button unticks the others of its group.
    void SetTicked(QLatin1StringView name, bool ticked);
    void SetItems(QLatin1StringView name, const QStringList& items, const std::vector<bool>& rowTicks = {});
    void AddItem(QLatin1StringView name, const QString& item);
    void RemoveItem(QLatin1StringView name, int row);
    void SetSelected(QLatin1StringView name, int row);
    // Of a row without a box nothing changes.
    void SetRowTicked(QLatin1StringView name, int row, bool ticked);
    void SetEnabled(QLatin1StringView name, bool enabled);
    void SetVisible(QLatin1StringView name, bool visible);
    void SetToolTip(QLatin1StringView name, const QString& toolTip);
    // Asks the window to move the input focus there.
    void SetFocus(QLatin1StringView name);

    // Values that the window shows in its own way; the labels say them in words.
    const qlm::Progress& Progress() const { return m_progress; }
    void SetProgress(const qlm::Progress& progress);
    const qlm::TimeDelay& TimeDelay() const { return m_timeDelay; }
    void SetTimeDelay(const qlm::TimeDelay& delay);
    PointerShape Pointer() const { return m_pointer; }
    void SetPointer(PointerShape shape);

    // Listeners are told of every change, in the order in which they were added. Returns a number for
    // RemoveListener.
    int AddListener(Listener listener);
    void RemoveListener(int number);

private:
    Control& Get(QLatin1StringView name);
    void Notify(const Control& control, Change change, int row = -1);

    std::vector<Control> m_controls;
    qlm::Progress m_progress;
    qlm::TimeDelay m_timeDelay;
    PointerShape m_pointer = PointerShape::Usual;
    QHash<QLatin1StringView, int> m_index;
    std::vector<std::pair<int, Listener>> m_listeners;
    int m_nextListener = 1;
};

} // namespace qlm
