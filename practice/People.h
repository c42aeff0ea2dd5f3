// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

namespace qlm::practice {

/// One invented member of the site.
struct Person {
    enum class Kind { Person, Band, Comedian, Film };

    qint64 id = 0;
    Kind kind = Kind::Person;
    QString name;
    bool male = false; ///< of people only
    int age = 0;       ///< years; 0 for whoever is no person
    QString town;
    QString region;
    QString country;
    QString genre;    ///< of bands only
    QString vanity;   ///< name in the address, or "" for a numeric address
    QString headline; ///< the line in quotation marks on top of the profile
    QString mood;
    QString interests;
    bool online = false;
    int daysSinceLogin = 0;
    bool advertiser = false; ///< a firm with goods to sell
    quint64 look = 0;        ///< what the drawn picture follows from
};

/// Everybody on the site: the invented crowd, the founder, and the owners of the accounts. All of it follows
/// from the seed.
class People {
public:
    static constexpr qint64 firstId = 100001;
    static constexpr int crowdSize = 5000;
    static constexpr qint64 founderId = 6221;

    explicit People(quint64 seed);

    /// Gives the owner of an account a profile of its own.
    void AddMember(qint64 id);

    /// Does nothing for an ID that nobody has. The address stays.
    void Rename(qint64 id, const QString& name);

    /// Whoever has that ID is gone for good.
    void Vanish(qint64 id) { m_gone.insert(id); }

    /// nullptr when nobody has that ID.
    const Person* Find(qint64 id) const;
    /// nullptr when nobody has that name in the address; letter case doesn't matter.
    const Person* FindVanity(const QString& vanity) const;

    /// The crowd in the order of IDs, without founder and members.
    const QList<Person>& Crowd() const { return m_crowd; }
    const Person& Founder() const;

private:
    quint64 m_seed;
    QList<Person> m_crowd;
    QMap<qint64, Person> m_others;
    QHash<QString, qint64> m_vanities;
    QSet<qint64> m_gone;
};

/// The address that the site's lists link a profile by: the vanity address when there is one.
QString ProfileUrl(const Person& person);

/// Name without anything behind its first word, as the site greets people.
QString FirstName(const Person& person);

} // namespace qlm::practice
