// SPDX-License-Identifier: MIT
#include "KnownNames.h"
#include "Stage.h"
#include "shell/FormRegistry.h"

#include <QAction>
#include <algorithm>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

const KnownNames& KnownNames::All() {
    static const KnownNames all;
    return all;
}

KnownNames::KnownNames() {
    const std::vector<Command> nothing;
    Stage stage(MakeSimMachine);
    Play play(stage, nothing);
    stage.play = &play;
    stage.LogIn(u"a@example.com"_s, u"1"_s);
    for (const Control& control : stage.TheApp().controls.All())
        m_controls.insert(QString(control.name));
    m_forms.insert(u"frmMain"_s);
    AddWindow(*stage.dialogs.FormWidget(u"frmMain"_s));
    for (const QString& name : FormNames()) {
        m_forms.insert(name);
        const std::unique_ptr<Form> form(CreateForm(name, {stage.TheApp(), stage.dialogs, nullptr}));
        AddWindow(*form);
    }
}

void KnownNames::AddWindow(const QWidget& window) {
    for (const QObject* object : window.findChildren<QObject*>())
        m_controls << object->objectName() << object->objectName().section(u'.', -1);
}

bool KnownNames::IsControl(const QString& name) const {
    const QStringList path = name.split(u'.');
    return std::ranges::all_of(path, [this, &path](const QString& part) {
        return !part.isEmpty() && (m_controls.contains(part) || (IsForm(part) && path.last() != part));
    });
}

bool KnownNames::IsMenuItem(const QString& name) const {
    return !name.startsWith(u"mnu") || m_controls.contains(name);
}

} // namespace qlm::scenario
