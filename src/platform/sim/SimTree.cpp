// SPDX-License-Identifier: MIT
#include "platform/sim/SimTree.h"

#include "platform/sim/SimTreeBuilder.h"

#include <QStringList>
#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

SimTree::SimTree(const QString& html) {
    m_nodes.emplace_back(); // number 0
    SimNode document;
    document.kind = SimNode::Kind::Document;
    m_nodes.push_back(document);
    SimTreeBuilder(*this).BuildPage(html);
}

int SimTree::Add(SimNode node, int parent) {
    const int number = static_cast<int>(m_nodes.size());
    node.parent = parent;
    m_nodes.push_back(std::move(node));
    m_nodes[static_cast<size_t>(parent)].children.push_back(number);
    return number;
}

SimNode& SimTree::Change(int node) {
    ++m_changes;
    return m_nodes[static_cast<size_t>(node)];
}

int SimTree::Body() const {
    for (const int html : At(Root()).children)
        for (const int child : At(html).children)
            if (At(child).Is(u"body") || At(child).Is(u"frameset"))
                return child;
    return 0;
}

void SimTree::DropBody() {
    if (const int body = Body())
        Remove(body);
}

bool SimTree::IsInside(int node, int ancestor) const {
    while (node != 0 && node != ancestor)
        node = At(node).parent;
    return node == ancestor;
}

bool SimTree::IsInPage(int node) const {
    return IsInside(node, Root());
}

bool SimTree::HasAttribute(int node, QStringView name) const {
    return std::ranges::any_of(At(node).attributes, [&](const auto& attribute) {
        return attribute.first.compare(name, Qt::CaseInsensitive) == 0;
    });
}

QString SimTree::Attribute(int node, QStringView name) const {
    for (const auto& [key, value] : At(node).attributes)
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    return {};
}

void SimTree::SetAttribute(int node, const QString& name, const QString& value) {
    SimNode& changed = Change(node);
    for (auto& [key, present] : changed.attributes)
        if (key.compare(name, Qt::CaseInsensitive) == 0) {
            present = value;
            return;
        }
    changed.attributes.emplace_back(name.toLower(), value);
}

void SimTree::RemoveAttribute(int node, QStringView name) {
    std::erase_if(Change(node).attributes, [&](const auto& attribute) {
        return attribute.first.compare(name, Qt::CaseInsensitive) == 0;
    });
}

void SimTree::SetValue(int node, const QString& value) {
    Change(node).value = value;
}

void SimTree::SetChecked(int node, bool checked) {
    Change(node).checked = checked;
}

void SimTree::SetInnerHTML(int node, const QString& html) {
    for (const int child : std::exchange(Change(node).children, {}))
        Change(child).parent = 0;
    SimTreeBuilder(*this).BuildFragment(html, node);
}

void SimTree::SetText(int node, const QString& text) {
    SetInnerHTML(node, {});
    const QStringList lines = QString(text).replace(u"\r\n"_s, u"\n"_s).split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        SimNode child;
        if (i > 0) {
            child.tag = u"br"_s;
            Add(child, node);
        }
        child = SimNode();
        child.kind = SimNode::Kind::Text;
        child.text = lines[i];
        if (!child.text.isEmpty())
            Add(child, node);
    }
}

void SimTree::AppendHTML(int node, const QString& html) {
    Change(node);
    SimTreeBuilder(*this).BuildFragment(html, node);
}

void SimTree::Remove(int node) {
    const int parent = At(node).parent;
    if (parent == 0)
        return;
    std::erase(Change(parent).children, node);
    Change(node).parent = 0;
}

void SimTree::Walk(int node, const std::function<bool(int)>& visit) const {
    // Numbers wait on a stack of our own: a page may nest deeper than the machine's stack is high.
    std::vector<int> waiting(At(node).children.rbegin(), At(node).children.rend());
    while (!waiting.empty()) {
        const int next = waiting.back();
        waiting.pop_back();
        if (At(next).IsElement() && !visit(next))
            return;
        waiting.insert(waiting.end(), At(next).children.rbegin(), At(next).children.rend());
    }
}

std::vector<int> SimTree::Elements(int node, QStringView tag) const {
    std::vector<int> found;
    const QString wanted = tag.toString().toLower();
    const bool any = wanted.isEmpty() || wanted == u"*";
    Walk(node, [&](int element) {
        if (any || At(element).tag == wanted)
            found.push_back(element);
        return true;
    });
    return found;
}

int SimTree::FindById(const QString& id) const {
    int found = 0;
    if (!id.isEmpty())
        Walk(Root(), [&](int element) {
            if (Attribute(element, u"id") == id)
                found = element;
            return found == 0;
        });
    return found;
}

int SimTree::Closest(int node, const std::function<bool(const SimNode&)>& test) const {
    while (node != 0 && !(At(node).IsElement() && test(At(node))))
        node = At(node).parent;
    return node;
}

QString SimTree::TextContent(int node) const {
    QString content;
    std::vector<int> waiting{node};
    while (!waiting.empty()) {
        const SimNode& next = At(waiting.back());
        waiting.pop_back();
        if (next.kind == SimNode::Kind::Text)
            content += next.text;
        waiting.insert(waiting.end(), next.children.rbegin(), next.children.rend());
    }
    return content;
}

const SimStyles& SimTree::Styles() const {
    if (!m_styles || m_stylesChanges != m_changes) {
        m_styles = std::make_shared<SimStyles>(*this);
        m_stylesChanges = m_changes;
    }
    return *m_styles;
}

} // namespace qlm
