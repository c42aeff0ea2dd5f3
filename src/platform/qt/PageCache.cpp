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
    for (const QStringView part : QStringView(joined).tokenize(u',')) {
        const qsizetype dash = part.indexOf(u'-');
        const int first = part.first(dash < 0 ? part.size() : dash).toInt();
        const int last = dash < 0 ? first : part.sliced(dash + 1).toInt();
        for (int node = first; node <= last; ++node)
            nodes.push_back(node);
    }
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
      m_markup(told.value(u"html"_s).toString()) {}

void PageTree::TakePlaces(const QVariantMap& told, int body) {
    m_arePlacesAsked = true;
    if (body == 0 || told.value(u"version"_s).toInt() != m_version)
        return;
    PageOutline outline(OuterMarkup());
    std::vector<int> nodes = UnpackNodes(told.value(u"nodes"_s));
    nodes.insert(nodes.begin(), body);
    if (!outline.IsSound() || outline.Count() != nodes.size())
        return;
    m_outline = std::move(outline);
    m_nodes = std::move(nodes);
    m_places.reserve(static_cast<qsizetype>(m_nodes.size()));
    for (size_t place = 0; place < m_nodes.size(); ++place)
        m_places.insert(m_nodes[place], static_cast<int>(place));
    const std::vector<int> outside = UnpackNodes(told.value(u"outside"_s));
    const std::vector<QString> ids = UnpackTexts(told.value(u"outsideIds"_s));
    for (size_t i = 0; i < std::min(outside.size(), ids.size()); ++i)
        if (!m_idsOutside.contains(ids[i]))
            m_idsOutside.insert(ids[i], outside[i]);
}

// Of several elements with one id, the first has it. What stands outside of the body stands before it.
int PageTree::NodeOfId(const QString& id) {
    if (const int outside = m_idsOutside.value(id, 0))
        return outside;
    const int place = m_outline.WithId(id);
    return place < 0 ? 0 : NodeAt(place);
}

int PageTree::ParentOf(int node) const {
    const int place = PlaceOf(node);
    return place > 0 ? NodeAt(m_outline.Parent(place)) : 0;
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
    m_look = PageLook{told.value(u"body"_s).toInt(), told.value(u"text"_s).toString(),
                      told.value(u"url"_s).toString()};
    if (told.contains(u"html"_s))
        m_tree = PageTree(told);
    m_isTreeSure = true;
    const QVariantList answers = told.value(u"answers"_s).toList();
    for (size_t i = 0; i < foresight.questions.size(); ++i)
        m_answers.emplace_back(foresight.questions[i], answers.value(static_cast<qsizetype>(i)).toBool());
}

std::optional<bool> PageCache::Answer(const Question& question) const {
    for (const auto& [asked, answer] : m_answers)
        if (asked == question)
            return answer;
    return std::nullopt;
}

std::optional<QString> PageCache::Attribute(int node, const QString& name) const {
    const auto found = m_attributes.constFind({node, name});
    if (found == m_attributes.constEnd())
        return std::nullopt;
    return found.value();
}

void PageCache::TakeReading(const Reading& reading, const QVariant& told) {
    const QVariantList parts = told.toList();
    const std::vector<int> nodes = UnpackNodes(parts.value(0));
    const std::vector<QString> texts = UnpackTexts(parts.value(1));
    m_readings.push_back(reading);
    if (reading.level == 0)
        SetCollection(reading.set, reading.argument, nodes);
    else
        AddGroup(nodes);
    for (size_t i = 0; i < std::min(nodes.size(), texts.size()); ++i)
        SetText(nodes[i], reading.which, texts[i]);
}

bool PageCache::IsRead(const Reading& reading) const {
    return std::find(m_readings.begin(), m_readings.end(), reading) != m_readings.end();
}

const QString* PageCache::Text(int node, ElementText which) const {
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
    std::vector<int> fresh;
    for (const int node : nodes)
        if (!m_places.contains(node)) {
            m_places.insert(node, {m_groups.size(), fresh.size()});
            fresh.push_back(node);
        }
    m_groups.push_back(std::move(fresh));
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
