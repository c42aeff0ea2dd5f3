// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimStyles.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace qlm {

// One node of a simulated page.
struct SimNode {
    enum class Kind { Document, Doctype, Element, Text, Comment };

    Kind kind = Kind::Element;
    int parent = 0;
    std::vector<int> children;
    QString tag;                                         // lower case
    bool isForeign = false;                              // of a drawing or a formula
    QString text;                                        // of a text, a comment or a doctype
    std::vector<std::pair<QString, QString>> attributes; // names in lower case
    // What was typed or set since; the attribute alone says what the page came with.
    std::optional<QString> value;
    std::optional<bool> checked;

    bool IsElement() const { return kind == Kind::Element; }
    bool Is(QStringView name) const { return kind == Kind::Element && tag == name; }
};

// The nodes of one simulated page. A node keeps its number for the life of the tree, also when it was taken
// out of the page; number 0 is no node.
class SimTree {
public:
    explicit SimTree(const QString& html);

    int Root() const { return 1; }
    // The html element's body or frameset; 0 when there is none.
    int Body() const;
    void DropBody();
    const SimNode& At(int node) const { return m_nodes[static_cast<size_t>(node)]; }
    bool IsInPage(int node) const;
    bool IsInside(int node, int ancestor) const;
    // Counts the changes, for caches.
    quint64 Changes() const { return m_changes; }

    bool HasAttribute(int node, QStringView name) const;
    QString Attribute(int node, QStringView name) const;
    void SetAttribute(int node, const QString& name, const QString& value);
    void RemoveAttribute(int node, QStringView name);
    void SetValue(int node, const QString& value);
    void SetChecked(int node, bool checked);

    void SetInnerHTML(int node, const QString& html);
    void SetText(int node, const QString& text);
    void AppendHTML(int node, const QString& html);
    void Remove(int node);

    // Elements below `node` in document order. `visit` returns false to stop.
    void Walk(int node, const std::function<bool(int)>& visit) const;
    std::vector<int> Elements(int node, QStringView tag) const;
    int FindById(const QString& id) const;
    // The nearest of the node and its ancestors that passes; 0 when none does.
    int Closest(int node, const std::function<bool(const SimNode&)>& test) const;
    // Text of all text nodes below, as it stands.
    QString TextContent(int node) const;
    // Of an element: what its style attribute and the page's style elements say of a property, in lower case.
    QString Style(int node, const QString& property) const { return Styles().Value(*this, node, property); }
    const SimStyles& Styles() const;

private:
    friend class SimTreeBuilder;
    int Add(SimNode node, int parent);
    SimNode& Change(int node);

    std::vector<SimNode> m_nodes;
    quint64 m_changes = 1;
    mutable std::shared_ptr<const SimStyles> m_styles;
    mutable quint64 m_stylesChanges = 0;
};

} // namespace qlm
