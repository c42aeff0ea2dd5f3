// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace qlm {

// deployment.ini: the host behind each role, fixed values of the site, and the proxy. Host roles are bare
// host names; ProductServer and ProductServerAlternate are base addresses with a scheme.
class Deployment {
public:
    // Reads "[Hosts]" role=host lines, "[Site]" and "[Network]" values. Unknown lines are kept as values.
    explicit Deployment(const QString& iniText);

    // Replaces every {Role} in the text. A role that the file doesn't name stays as it is.
    QString Expand(const QString& text) const;
    QString Role(const QString& name) const { return m_values.value(name); }
    // A value of any section by its key: "FounderName", "FounderAddress", "Proxy", "SupportAddress".
    QString Value(const QString& key) const { return m_values.value(key); }
    // True for the address of a page of the site itself, on one of the deployment's hosts. Passwords are
    // typed into such pages alone and read from them alone, and sent to no other address.
    bool IsSitePage(const QString& address) const;
    // Roles that must be there and are not.
    QStringList MissingRoles() const;
    // True when the proxy is the bundled practice site.
    bool UsesPracticeSite() const;

private:
    QHash<QString, QString> m_values;
    mutable QHash<QString, QString> m_expanded;
};

} // namespace qlm
