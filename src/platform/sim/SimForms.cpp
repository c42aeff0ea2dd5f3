// SPDX-License-Identifier: MIT
#include "platform/sim/SimForms.h"

#include "platform/sim/SimAddress.h"

#include <QStringList>
#include <algorithm>
#include <utility>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QString OptionValue(const SimTree& tree, int option) {
    if (tree.At(option).value)
        return *tree.At(option).value;
    return tree.HasAttribute(option, u"value") ? tree.Attribute(option, u"value")
                                               : tree.TextContent(option).simplified();
}

bool IsMultiple(const SimTree& tree, int select) {
    return tree.HasAttribute(select, u"multiple");
}

bool IsDropDown(const SimTree& tree, int select) {
    return !IsMultiple(tree, select) && tree.Attribute(select, u"size").toInt() <= 1;
}

bool IsMarked(const SimTree& tree, int node, QStringView attribute) {
    return tree.At(node).checked.value_or(tree.HasAttribute(node, attribute));
}

// What a drop-down list shows when nothing in it was chosen; 0 when there is nothing to show.
int FirstChoice(const SimTree& tree, const std::vector<int>& options) {
    const auto first = std::ranges::find_if(options, [&](int option) { return !IsDisabled(tree, option); });
    return first == options.end() ? 0 : *first;
}

std::vector<int> ChosenOptions(const SimTree& tree, int select) {
    const std::vector<int> options = tree.Elements(select, u"option");
    std::vector<int> chosen;
    bool wasChosenByHand = false;
    for (const int option : options) {
        wasChosenByHand = wasChosenByHand || tree.At(option).checked;
        if (IsMarked(tree, option, u"selected"))
            chosen.push_back(option);
    }
    if (!IsMultiple(tree, select) && chosen.size() > 1)
        chosen.erase(chosen.begin(), chosen.end() - 1);
    if (chosen.empty() && !wasChosenByHand && IsDropDown(tree, select) && FirstChoice(tree, options))
        chosen.push_back(FirstChoice(tree, options));
    return chosen;
}

int SelectOf(const SimTree& tree, int option) {
    return tree.Closest(option, [](const SimNode& n) { return n.Is(u"select"); });
}

// Whether the element is one that a group around it can disable.
bool CanBeDisabled(const SimTree& tree, int node) {
    const SimNode& control = tree.At(node);
    return CanSend(tree, node) || control.Is(u"fieldset") || control.Is(u"option") || control.Is(u"optgroup");
}

void AddControl(const SimTree& tree, int node, int pressed, std::vector<SimField>& fields) {
    const QString name = tree.Attribute(node, u"name");
    const QString type = TypeOf(tree, node);
    if (node == pressed && type == u"image") {
        const QString prefix = name.isEmpty() ? QString() : name + u'.';
        fields.push_back({prefix + u'x', u"0"_s});
        fields.push_back({prefix + u'y', u"0"_s});
        return;
    }
    if (name.isEmpty() || (IsButton(tree, node) && node != pressed))
        return;
    if ((type == u"checkbox" || type == u"radio") && !IsTicked(tree, node))
        return;
    if (!tree.At(node).Is(u"select")) {
        fields.push_back({name, ValueOf(tree, node)});
        return;
    }
    for (const int option : ChosenOptions(tree, node))
        fields.push_back({name, OptionValue(tree, option)});
}

// A line of text has no line ends, a text area holds LF alone.
QString AsHeld(const SimTree& tree, int node, QString value) {
    if (tree.At(node).Is(u"textarea"))
        return value.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    const bool isLine = tree.At(node).Is(u"input") && TypeOf(tree, node) != u"hidden";
    return isLine ? value.remove(u'\n').remove(u'\r') : value;
}

// On its way every line end is CR LF.
QString AsSent(QString value) {
    return value.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\n', u"\r\n"_s);
}

} // namespace

bool IsButton(const SimTree& tree, int node) {
    const QString type = TypeOf(tree, node);
    return tree.At(node).Is(u"button") || type == u"submit" || type == u"image" || type == u"button" ||
           type == u"reset";
}

bool CanSend(const SimTree& tree, int node) {
    const SimNode& control = tree.At(node);
    return control.Is(u"input") || control.Is(u"textarea") || control.Is(u"select") || control.Is(u"button");
}

QString TypeOf(const SimTree& tree, int node) {
    const SimNode& control = tree.At(node);
    const QString type = tree.Attribute(node, u"type").toLower();
    if (control.Is(u"select"))
        return IsMultiple(tree, node) ? u"select-multiple"_s : u"select-one"_s;
    if (control.Is(u"textarea"))
        return u"textarea"_s;
    if (type.isEmpty() && control.Is(u"input"))
        return u"text"_s;
    if (type.isEmpty() && control.Is(u"button"))
        return u"submit"_s;
    return type;
}

bool IsDisabled(const SimTree& tree, int node) {
    if (tree.HasAttribute(node, u"disabled"))
        return true;
    if (!CanBeDisabled(tree, node))
        return false;
    const bool isChoice = tree.At(node).Is(u"option");
    // What stands in the legend of a group stays as it is.
    int legend = 0;
    for (int above = tree.At(node).parent; above != 0; above = tree.At(above).parent) {
        const SimNode& group = tree.At(above);
        const bool isGroup = isChoice ? group.Is(u"optgroup") : group.Is(u"fieldset");
        if (isGroup && tree.HasAttribute(above, u"disabled") && tree.At(legend).parent != above)
            return true;
        if (group.Is(u"legend"))
            legend = above;
    }
    return false;
}

bool IsTicked(const SimTree& tree, int node) {
    return tree.At(node).Is(u"input") && IsMarked(tree, node, u"checked");
}

bool IsSelected(const SimTree& tree, int option) {
    if (!tree.At(option).Is(u"option"))
        return false;
    const int select = SelectOf(tree, option);
    return select ? std::ranges::count(ChosenOptions(tree, select), option) > 0
                  : IsMarked(tree, option, u"selected");
}

QString ValueOf(const SimTree& tree, int node) {
    const SimNode& control = tree.At(node);
    if (control.Is(u"select")) {
        const std::vector<int> chosen = ChosenOptions(tree, node);
        return chosen.empty() ? QString() : OptionValue(tree, chosen.front());
    }
    if (control.Is(u"option"))
        return OptionValue(tree, node);
    if (control.value)
        return *control.value;
    if (control.Is(u"textarea"))
        return AsHeld(tree, node, tree.TextContent(node));
    const QString type = TypeOf(tree, node);
    if ((type == u"checkbox" || type == u"radio") && !tree.HasAttribute(node, u"value"))
        return u"on"_s;
    return tree.Attribute(node, u"value");
}

void SetValueOf(SimTree& tree, int node, const QString& value) {
    if (!tree.At(node).Is(u"select")) {
        tree.SetValue(node, AsHeld(tree, node, value));
        return;
    }
    bool found = false;
    for (const int option : tree.Elements(node, u"option")) {
        const bool chosen = !found && OptionValue(tree, option) == value;
        tree.SetChecked(option, chosen);
        found = found || chosen;
    }
}

void ChooseOption(SimTree& tree, int option, bool isChosen) {
    const int select = SelectOf(tree, option);
    if (IsSelected(tree, option) == isChosen)
        return;
    if (select == 0 || IsMultiple(tree, select))
        return tree.SetChecked(option, isChosen);
    const std::vector<int> options = tree.Elements(select, u"option");
    for (const int other : options)
        tree.SetChecked(other, isChosen && other == option);
    if (!isChosen && IsDropDown(tree, select) && FirstChoice(tree, options))
        tree.SetChecked(FirstChoice(tree, options), true);
}

void Toggle(SimTree& tree, int node) {
    if (TypeOf(tree, node) == u"checkbox") {
        tree.SetChecked(node, !IsTicked(tree, node));
        return;
    }
    const QString name = tree.Attribute(node, u"name");
    const int form = FormOf(tree, node);
    for (const int other : tree.Elements(tree.Root(), u"input"))
        if (TypeOf(tree, other) == u"radio" && tree.Attribute(other, u"name") == name &&
            FormOf(tree, other) == form)
            tree.SetChecked(other, other == node);
}

int FormOf(const SimTree& tree, int node) {
    if (tree.HasAttribute(node, u"form"))
        return tree.FindById(tree.Attribute(node, u"form"));
    const auto isForm = [](const SimNode& n) { return n.Is(u"form"); };
    if (const int form = tree.Closest(node, isForm))
        return form;
    // A form that begins between the rows of a table holds no elements in the tree; the controls after it are
    // its own.
    int owner = 0;
    tree.Walk(tree.Root(), [&](int element) {
        const QString parentTag = tree.At(tree.At(element).parent).tag;
        if (tree.At(element).Is(u"form"))
            owner = parentTag == u"table" || parentTag == u"tbody" || parentTag == u"tr" ? element : 0;
        return element != node;
    });
    const int table = owner ? tree.Closest(owner, [](const SimNode& n) { return n.Is(u"table"); }) : 0;
    return table && tree.IsInside(node, table) ? owner : 0;
}

std::vector<SimField> FieldsOf(const SimTree& tree, int form, int pressed) {
    std::vector<SimField> fields;
    tree.Walk(tree.Root(), [&](int element) {
        if (CanSend(tree, element) && !IsDisabled(tree, element) && FormOf(tree, element) == form)
            AddControl(tree, element, pressed, fields);
        return true;
    });
    return fields;
}

QString EncodedFields(const std::vector<SimField>& fields) {
    QStringList pairs;
    for (const SimField& field : fields)
        pairs += EncodeFormText(field.name) + u'=' + EncodeFormText(AsSent(field.value));
    return pairs.join(u'&');
}

} // namespace qlm
