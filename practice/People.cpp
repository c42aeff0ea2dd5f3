// SPDX-License-Identifier: MIT
#include "People.h"

#include "Chance.h"
#include "SiteHosts.h"
#include "WordLists.h"

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

Person::Kind DrawKind(Draw& draw) {
    const int share = draw.Below(100);
    if (share < 78)
        return Person::Kind::Person;
    if (share < 94)
        return Person::Kind::Band;
    return share < 97 ? Person::Kind::Comedian : Person::Kind::Film;
}

QString TwoWords(Draw& draw, Words first, Words second) {
    const QString start = draw.Pick(first);
    return start + u' ' + draw.Pick(second);
}

void DrawName(Person& person, Draw& draw) {
    person.male = draw.Percent(50);
    if (person.kind == Person::Kind::Band)
        person.name = TwoWords(draw, BandFirstWords(), BandSecondWords());
    else if (person.kind == Person::Kind::Film)
        person.name = TwoWords(draw, FilmFirstWords(), FilmSecondWords());
    else
        person.name = TwoWords(draw, person.male ? MaleNames() : FemaleNames(), Surnames());
}

Person Invent(quint64 seed, qint64 id, bool alwaysPerson) {
    Draw draw(Mix(seed, static_cast<quint64>(id), 1));
    Person person;
    person.id = id;
    person.kind = DrawKind(draw);
    if (alwaysPerson)
        person.kind = Person::Kind::Person;
    DrawName(person, draw);
    const Place& place = draw.Pick(Places());
    person.town = place.town;
    person.region = place.region;
    person.country = place.country;
    person.genre = draw.Pick(Genres());
    const int years = 18 + draw.Below(30) + draw.Below(15);
    person.age = person.kind == Person::Kind::Person ? years : 0;
    person.headline = draw.Pick(person.kind == Person::Kind::Band ? BandHeadlines() : Headlines());
    person.mood = draw.Pick(Moods());
    for (int i = 0; i < 3; ++i)
        person.interests += (i ? u", "_s : QString()) + draw.Pick(Interests());
    person.online = draw.Percent(12);
    const int quiet = draw.Percent(60) ? draw.Below(14) : draw.Below(400);
    person.daysSinceLogin = person.online ? 0 : quiet;
    person.look = Mix(seed, static_cast<quint64>(id), 2);
    person.advertiser = !alwaysPerson && Mix(seed, static_cast<quint64>(id), 5) % 40 == 0;
    return person;
}

QString LettersOf(const QString& text) {
    QString letters;
    for (const QChar c : text.toLower())
        if (c >= u'a' && c <= u'z')
            letters += c;
    return letters;
}

// Vanity names hold no digits, so that nothing in such an address gives the ID away.
QString LetterNumber(int number) {
    QString letters;
    for (; number > 0; number /= 26)
        letters += QChar(u'a' + number % 26);
    return letters;
}

} // namespace

People::People(quint64 seed) : m_seed(seed) {
    Person founder = Invent(seed, founderId, true);
    founder.name = u"Tam"_s;
    founder.vanity = u"tam"_s;
    founder.male = true;
    founder.age = 33;
    m_vanities.insert(founder.vanity, founder.id);
    m_others.insert(founder.id, founder);

    m_crowd.reserve(crowdSize);
    for (int index = 0; index < crowdSize; ++index) {
        Person person = Invent(seed, firstId + index, false);
        if (person.id % 7 == 0) {
            person.vanity = LettersOf(person.name);
            if (m_vanities.contains(person.vanity))
                person.vanity += u"x"_s + LetterNumber(index);
            m_vanities.insert(person.vanity, person.id);
        }
        m_crowd.append(person);
    }
}

void People::AddMember(qint64 id) {
    if (!Find(id))
        m_others.insert(id, Invent(m_seed, id, true));
}

void People::Rename(qint64 id, const QString& name) {
    if (id >= firstId && id < firstId + crowdSize)
        m_crowd[id - firstId].name = name;
    else if (const auto other = m_others.find(id); other != m_others.end())
        other->name = name;
}

const Person* People::Find(qint64 id) const {
    if (m_gone.contains(id))
        return nullptr;
    if (id >= firstId && id < firstId + crowdSize)
        return &m_crowd[id - firstId];
    const auto other = m_others.constFind(id);
    return other == m_others.constEnd() ? nullptr : &*other;
}

const Person* People::FindVanity(const QString& vanity) const {
    const auto id = m_vanities.constFind(vanity.toLower());
    return id == m_vanities.constEnd() ? nullptr : Find(*id);
}

const Person& People::Founder() const {
    return *m_others.constFind(founderId);
}

QString ProfileUrl(const Person& person) {
    return Url(Role::SiteRoot, u'/' + (person.vanity.isEmpty() ? QString::number(person.id) : person.vanity));
}

QString FirstName(const Person& person) {
    return person.kind == Person::Kind::Person ? person.name.section(u' ', 0, 0) : person.name;
}

} // namespace qlm::practice
