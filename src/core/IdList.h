// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace qlm {

// A set of whole numbers from 0 on, as bare slots: four bytes a slot for numbers that fit, eight for the
// rest.
template <typename Number> class NumberTable {
public:
    bool Contains(Number number) const;
    // False when it was there already.
    bool Insert(Number number);
    void Remove(Number number);
    void Clear() { *this = NumberTable(); }

private:
    size_t Home(Number number) const;
    void Grow();

    // A number plus one; 0 is a free slot. Always a power of two of them, at most seven tenths taken.
    std::vector<Number> m_slots;
    size_t m_taken = 0;
};

// A list of short texts, nearly all of them decimal IDs, for lists of a million. An ID is kept as a number of
// eight bytes, any other text as it stands; both come back exactly as they were put in. The membership test
// is exact and takes the same time however long the list is: an index is built when it is first asked for
// and kept up to date from then on. An entry at the front is removed in constant time.
class IdList {
public:
    IdList() = default;
    IdList(std::initializer_list<QString> texts);
    explicit IdList(const QStringList& texts);

    qsizetype size() const { return m_keys.size(); }
    bool isEmpty() const { return m_keys.isEmpty(); }
    QString at(qsizetype i) const { return TextOf(m_keys.at(i)); }
    // "" beyond the ends.
    QString value(qsizetype i) const { return i < 0 || i >= size() ? QString() : at(i); }
    QString first() const { return at(0); }
    QString last() const { return at(size() - 1); }
    bool IsBlank(qsizetype i) const;

    void append(const QString& text);
    void Set(qsizetype i, const QString& text);
    void removeAt(qsizetype i);
    // New entries are "".
    void resize(qsizetype size);
    void swapItemsAt(qsizetype i, qsizetype j) { m_keys.swapItemsAt(i, j); }

    bool contains(const QString& text) const;
    // Position of the first exact match; -1 when there is none.
    qsizetype indexOf(const QString& text) const;

    QStringList ToStringList(qsizetype limit = -1) const;
    // The entries from first up to end, that one left out, as lines of a text file.
    QByteArray Lines(qsizetype first, qsizetype end) const;
    bool operator==(const QStringList& texts) const;

private:
    using Key = quint64;

    // Which entries there are. Numbers that stand more than once have a count beside the tables.
    struct Index {
        NumberTable<quint32> narrow;
        NumberTable<quint64> wide;
        QHash<Key, int> repeats;
        QHash<QByteArray, int> texts;
    };

    static std::optional<Key> NumberOf(QStringView text);
    Key KeyOf(const QString& text);
    QByteArrayView BytesOf(Key key) const;
    QString TextOf(Key key) const;
    void BuildIndex() const;
    void Enter(Key key) const;
    void Leave(Key key);

    // A number as it is; the upper bit marks a text: where it stands in m_texts and how long it is there.
    QList<Key> m_keys;
    QByteArray m_texts; // UTF-8, one after the other
    mutable std::optional<Index> m_index;
};

} // namespace qlm
