// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

class QWidget;

namespace qlm::scenario {

// The names that a scenario can use: of every form, of what stands on it, and of the menus, whether they are
// open just now or not.
class KnownNames {
public:
    // Collected once, from a program that is started for it; not while another one is on the stage.
    static const KnownNames& All();

    bool IsForm(const QString& name) const { return m_forms.contains(name); }
    // "picMessanger.picEditList" is one on another, or on a form.
    bool IsControl(const QString& name) const;
    // By name. An item that is named by its caption may come with the user's own data.
    bool IsMenuItem(const QString& name) const;

private:
    KnownNames();
    void AddWindow(const QWidget& window);

    QSet<QString> m_forms;
    QSet<QString> m_controls;
};

} // namespace qlm::scenario
