// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <QHash>
#include <QVariant>
#include <optional>

namespace qlm {

// Texts as the bridge packs them: their lengths and one joined string.
std::vector<QString> UnpackTexts(const QVariant& packed);
// Node numbers as the bridge lists them, joined by commas.
std::vector<int> UnpackNodes(const QVariant& list);

// What follows from a document's tree alone. It outlives the turn, as long as the tree stays as it is; the
// long lists stay packed until somebody asks for them.
class PageTree {
public:
    PageTree() = default;
    explicit PageTree(const QVariantMap& told);

    int Version() const { return m_version; }
    const QString& BodyTag() const { return m_bodyTag; }
    const QString& Markup() const { return m_markup; }
    const std::vector<int>& Links() const { return m_links; }
    int NodeOfId(const QString& id);
    const QString* Href(int link);

private:
    int m_version = 0; // 0: none known yet
    QString m_bodyTag;
    QString m_markup;
    std::vector<int> m_links;
    QVariant m_packedHrefs;
    QVariant m_markedNodes;
    QVariant m_packedIds;
    std::optional<QHash<QString, int>> m_ids;
    std::optional<QHash<int, QString>> m_hrefs;
};

// What one call tells about a whole page, besides its tree.
struct PageLook {
    int body = 0; // 0 while there is none
    QString text;
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

    const QString* Text(int node, ElementText which);
    void SetText(int node, ElementText which, const QString& text);
    std::optional<int> Parent(int node) const;
    void SetParent(int node, int parent) { m_parents.insert(node, parent); }

    const std::vector<int>* Collection(ElementSet set, const QString& argument) const;
    void SetCollection(ElementSet set, const QString& argument, const std::vector<int>& nodes);
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
    std::optional<PageLook> m_look;
    QHash<std::pair<int, int>, QString> m_texts;
    QHash<int, int> m_parents;
    QHash<std::pair<int, QString>, std::vector<int>> m_collections;
    std::vector<std::vector<int>> m_groups;
    QHash<int, Place> m_places;
};

} // namespace qlm
