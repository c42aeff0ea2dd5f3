// SPDX-License-Identifier: MIT
#include "platform/qt/PageCache.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

std::vector<int> UnpackNodes(const QVariant& list) {
    std::vector<int> nodes;
    const QString joined = list.toString();
    if (joined.isEmpty())
        return nodes;
    for (const QStringView number : QStringView(joined).tokenize(u','))
        nodes.push_back(number.toInt());
    return nodes;
}

std::vector<QString> UnpackTexts(const QVariant& packed) {
    const QVariantList parts = packed.toList();
    std::vector<QString> texts;
    if (parts.size() != 2)
        return texts;
    const QString joined = parts.at(1).toString();
    qsizetype start = 0;
    for (const int length : UnpackNodes(parts.at(0))) {
        texts.push_back(joined.mid(start, length));
        start += length;
    }
    return texts;
}

PageTree::PageTree(const QVariantMap& told)
    : m_version(told.value(u"version"_s).toInt()),
      m_bodyTag(told.value(u"bodyTag"_s).toString()),
      m_markup(told.value(u"html"_s).toString()),
      m_links(UnpackNodes(told.value(u"links"_s))),
      m_packedHrefs(told.value(u"hrefs"_s)),
      m_markedNodes(told.value(u"marked"_s)),
      m_packedIds(told.value(u"ids"_s)) {}

// Of several elements with one id, the first has it.
int PageTree::NodeOfId(const QString& id) {
    if (!m_ids) {
        m_ids.emplace();
        const std::vector<int> nodes = UnpackNodes(m_markedNodes);
        const std::vector<QString> ids = UnpackTexts(m_packedIds);
        for (size_t i = 0; i < std::min(nodes.size(), ids.size()); ++i)
            if (!m_ids->contains(ids[i]))
                m_ids->insert(ids[i], nodes[i]);
    }
    return m_ids->value(id, 0);
}

const QString* PageTree::Href(int link) {
    if (!m_hrefs) {
        m_hrefs.emplace();
        const std::vector<QString> hrefs = UnpackTexts(m_packedHrefs);
        for (size_t i = 0; i < std::min(m_links.size(), hrefs.size()); ++i)
            m_hrefs->insert(m_links[i], hrefs[i]);
    }
    const auto found = m_hrefs->constFind(link);
    return found == m_hrefs->constEnd() ? nullptr : &found.value();
}

void PageCache::EnterTurn(quint64 turn) {
    if (turn == m_turn)
        return;
    PageTree tree = std::move(m_tree);
    *this = PageCache();
    m_tree = std::move(tree);
    m_turn = turn;
}

void PageCache::TakeLook(const QVariantMap& told) {
    m_look = PageLook{told.value(u"body"_s).toInt(), told.value(u"text"_s).toString()};
    if (told.contains(u"links"_s))
        m_tree = PageTree(told);
    SetCollection(ElementSet::Links, {}, m_tree.Links());
}

const QString* PageCache::Text(int node, ElementText which) {
    if (which == ElementText::Href && m_look)
        if (const QString* href = m_tree.Href(node))
            return href;
    const auto found = m_texts.constFind({node, static_cast<int>(which)});
    return found == m_texts.constEnd() ? nullptr : &found.value();
}

void PageCache::SetText(int node, ElementText which, const QString& text) {
    m_texts.insert({node, static_cast<int>(which)}, text);
}

std::optional<int> PageCache::Parent(int node) const {
    const auto found = m_parents.constFind(node);
    if (found == m_parents.constEnd())
        return std::nullopt;
    return found.value();
}

const std::vector<int>* PageCache::Collection(ElementSet set, const QString& argument) const {
    const auto found = m_collections.constFind({static_cast<int>(set), argument});
    return found == m_collections.constEnd() ? nullptr : &found.value();
}

void PageCache::SetCollection(ElementSet set, const QString& argument, const std::vector<int>& nodes) {
    m_collections.insert({static_cast<int>(set), argument}, nodes);
    AddGroup(nodes);
}

void PageCache::AddGroup(const std::vector<int>& nodes) {
    for (size_t i = 0; i < nodes.size(); ++i)
        if (!m_places.contains(nodes[i]))
            m_places.insert(nodes[i], {m_groups.size(), i});
    m_groups.push_back(nodes);
}

std::vector<int> PageCache::Following(int node, size_t limit) const {
    const auto place = m_places.constFind(node);
    if (place == m_places.constEnd())
        return {node};
    const std::vector<int>& group = m_groups[place->group];
    const size_t end = std::min(group.size(), place->position + limit);
    return {group.begin() + static_cast<qsizetype>(place->position),
            group.begin() + static_cast<qsizetype>(end)};
}

std::vector<int> PageCache::Lineage(int node, size_t limit) const {
    std::vector<int> lineage;
    for (int next = node; next != 0 && lineage.size() < limit; next = Parent(next).value_or(0))
        lineage.push_back(next);
    return lineage;
}

} // namespace qlm
