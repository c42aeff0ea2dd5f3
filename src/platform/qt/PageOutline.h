// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <optional>
#include <vector>

namespace qlm {

// The tree of a page's body, read off the markup that the engine writes for it. An element's markup is a part
// of its ancestors', so that one text answers for all of them what would otherwise be a call into the page
// each. Elements have places, counted in document order; 0 is the body.
//
// Knows the engine's way of writing and nothing else: every attribute has a quoted value, every element that
// can hold something a closing tag. A tree that scripts have built may be written in a way that reads back
// otherwise; then the outline says that it isn't sound, or its count isn't the page's.
class PageOutline {
public:
    PageOutline() = default;
    // From the body's opening tag to its closing one.
    explicit PageOutline(QString markup);

    bool IsSound() const { return m_isSound; }
    // What templates hold is written but is no part of the tree.
    size_t Count() const { return m_elements.size(); }

    int Parent(int place) const { return At(place).parent; } // -1: the body's
    QString Outer(int place) const;
    QString Inner(int place) const;
    QString Tag(int place) const { return Name(At(place)).toString().toLower(); }
    // Nothing when the element has no such attribute.
    std::optional<QString> Attribute(int place, const QString& name) const;
    // The first element of that id; -1: none has it.
    int WithId(const QString& id);

private:
    struct Part {
        int parent;
        int start;      // of "<"
        int nameEnd;    // after the name
        int innerStart; // after the opening tag
        int innerEnd;   // at the closing tag
        int end;        // after it
    };

    class Reader;

    const Part& At(int place) const { return m_elements.at(static_cast<size_t>(place)); }
    QStringView Name(const Part& part) const;

    QString m_markup;
    std::vector<Part> m_elements;
    bool m_isSound = false;
    std::optional<QHash<QString, int>> m_ids;
};

} // namespace qlm
