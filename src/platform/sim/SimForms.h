// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimTree.h"

namespace qlm {

struct SimField {
    QString name;
    QString value;
};

// The value as a script would read it: what was typed, or what the page came with.
QString ValueOf(const SimTree& tree, int node);
// Of a list box: chooses the option with that value.
void SetValueOf(SimTree& tree, int node, const QString& value);

QString TypeOf(const SimTree& tree, int node);
bool IsButton(const SimTree& tree, int node);
// Has a value that a form sends.
bool CanSend(const SimTree& tree, int node);
// By its own attribute, or by what it stands in.
bool IsDisabled(const SimTree& tree, int node);
// A check box or an option button is ticked; an option is chosen, shown or not.
bool IsTicked(const SimTree& tree, int node);
bool IsSelected(const SimTree& tree, int option);
// A click on a check box or an option button.
void Toggle(SimTree& tree, int node);
void ChooseOption(SimTree& tree, int option, bool isChosen);

// The form that a control belongs to, 0 when there is none.
int FormOf(const SimTree& tree, int node);
// What the form would send, in page order; `pressed` is the button it is sent with, or 0.
std::vector<SimField> FieldsOf(const SimTree& tree, int form, int pressed);
QString EncodedFields(const std::vector<SimField>& fields);

} // namespace qlm
