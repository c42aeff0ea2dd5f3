// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"
#include "platform/qt/PageOutline.h"

#include <QHash>
#include <QVariant>
#include <optional>

namespace qlm {

// Texts as the bridge packs them: their lengths and one joined string.
std::vector<QString> UnpackTexts(const QVariant& packed);
// Node numbers as the bridge lists them, joined by commas; "4-7" stands for those from 4 to 7.
std::vector<int> UnpackNodes(const QVariant& list);

// What follows from a document's tree alone. It outlives the turn, as long as the tree stays as it is.
class PageTree {
public:
    PageTree() = default;
    explicit PageTree(const QVariantMap& told);

    int Version() const { return m_version; } // 0: none known yet
    const QString& Markup() const { return m_markup; }
    QString OuterMarkup() const { return m_bodyTag + m_markup + QStringLiteral("</body>"); }

    // The elements' numbers, by their places in the body's markup. Nothing comes of it when the page has
    // changed meanwhile or its markup doesn't tell its tree.
    void TakePlaces(const QVariantMap& told, int body);
    bool ArePlacesAsked() const { return m_arePlacesAsked; }
    bool HasPlaces() const { return !m_nodes.empty(); }
    // -1: the node stands elsewhere.
    int PlaceOf(int node) const { return m_places.value(node, -1); }
    // 0: none, or it is not told by the markup.
    int ParentOf(int node) const;
    int NodeAt(int place) const { return m_nodes.at(static_cast<size_t>(place)); }
    const PageOutline& Outline() const { return m_outline; }
    int NodeOfId(const QString& id);

private:
    int m_version = 0;
    QString m_bodyTag;
    QString m_markup;
    bool m_arePlacesAsked = false;
    PageOutline m_outline;
    std::vector<int> m_nodes;
    QHash<int, int> m_places;
    QHash<QString, int> m_idsOutside;
};

// What one call tells about a whole page, besides its tree.
struct PageLook {
    int body = 0; // 0 while there is none
    QString text;
    QString address;
};

// Everything that is known of one document in the present turn. Nodes that were found together are expected
// to be read together, so that the nodes after the one asked for can be fetched along with it.
class PageCache {
public:
    // Forgets everything but the tree when the turn is another one.
    void EnterTurn(quint64 turn);

    const std::optional<PageLook>& Look() const { return m_look; }
    void TakeLook(const QVariantMap& told);
    PageTree& Tree() { return m_tree; }
    // The tree is known to be the page's in this turn.
    bool IsTreeSure() const { return m_isTreeSure; }
    void SetTreeSure() { m_isTreeSure = true; }

    // Until it has been fetched.
    Foresight foresight;
    void TakeReading(const Reading& reading, const QVariant& told);
    bool IsRead(const Reading& reading) const;
    std::optional<bool> Answer(const Question& question) const;
    std::optional<QString> Attribute(int node, const QString& name) const;
    void SetAttribute(int node, const QString& name, const QString& value) {
        m_attributes.insert({node, name}, value);
    }

    const QString* Text(int node, ElementText which) const;
    void SetText(int node, ElementText which, const QString& text);
    std::optional<int> Parent(int node) const;
    void SetParent(int node, int parent) { m_parents.insert(node, parent); }

    const std::vector<int>* Collection(ElementSet set, const QString& argument) const;
    void SetCollection(ElementSet set, const QString& argument, const std::vector<int>& nodes);
    // A node that stands in a group already stays in that one.
    void AddGroup(const std::vector<int>& nodes);
    // The node and those that follow it in the group it was found in, at most limit.
    std::vector<int> Following(int node, size_t limit) const;
    // The node and its ancestors as far as they are known, at most limit.
    std::vector<int> Lineage(int node, size_t limit) const;
    bool IsGrouped(int node) const { return m_places.contains(node); }

private:
    struct Place {
        size_t group;
        size_t position;
    };

    quint64 m_turn = 0;
    PageTree m_tree;
    bool m_isTreeSure = false;
    std::optional<PageLook> m_look;
    std::vector<std::pair<Question, bool>> m_answers;
    std::vector<Reading> m_readings;
    QHash<std::pair<int, QString>, QString> m_attributes;
    QHash<std::pair<int, int>, QString> m_texts;
    QHash<int, int> m_parents;
    QHash<std::pair<int, QString>, std::vector<int>> m_collections;
    std::vector<std::vector<int>> m_groups;
    QHash<int, Place> m_places;
};

} // namespace qlm
