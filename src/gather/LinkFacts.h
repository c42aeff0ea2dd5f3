// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <array>
#include <optional>

namespace qlm {

// One link of a page and its surroundings as the gather rules see them. Every property is read from the page
// once, when a rule first asks for it: a read may be a call into the browser's engine, and an ancestor's
// markup may be the half of the page. Lives as long as one link is being judged.
class LinkFacts {
public:
    explicit LinkFacts(const Element& link) { m_nodes[0].element = link; }

    const Element& Link() const { return *m_nodes[0].element; }
    const QString& Href() { return Cached(m_href, Link(), ElementText::Href); }
    const QString& HostName() { return Cached(m_hostName, Link(), ElementText::HostName); }
    const QString& Id() { return Cached(m_id, Link(), ElementText::Id); }
    const QString& Title() { return Cached(m_title, Link(), ElementText::Title); }

    // n = 0 is the link, 1 its parent and so on. A missing ancestor reads as empty text.
    const QString& Text(int n = 0) { return Cached(Node(n).text, *Node(n).element, ElementText::InnerText); }
    const QString& InnerHTML(int n = 0) {
        return Cached(Node(n).inner, *Node(n).element, ElementText::InnerHTML);
    }
    const QString& OuterHTML(int n = 0) {
        return Cached(Node(n).outer, *Node(n).element, ElementText::OuterHTML);
    }
    QString TagName(int n) { return Node(n).element->TagName(); }
    QString Attribute(int n, const QString& name) { return Node(n).element->GetAttribute(name); }

private:
    using OptionalText = std::optional<QString>;
    struct NodeFacts {
        std::optional<Element> element;
        OptionalText text;
        OptionalText inner;
        OptionalText outer;
    };

    NodeFacts& Node(int n) {
        NodeFacts& node = m_nodes.at(static_cast<size_t>(n));
        if (!node.element)
            node.element = Node(n - 1).element->ParentElement();
        return node;
    }
    static const QString& Cached(OptionalText& kept, const Element& element, ElementText which) {
        if (!kept)
            kept = element.Read(which);
        return *kept;
    }

    std::array<NodeFacts, 8> m_nodes;
    OptionalText m_href;
    OptionalText m_hostName;
    OptionalText m_id;
    OptionalText m_title;
};

} // namespace qlm
