// SPDX-License-Identifier: MIT
#pragma once

#include "core/Text.h"
#include "platform/Document.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>

namespace qlm {

// The nodes of a page as the gather rules see them, while some of its links are judged together. Every
// property is read from the page once, when a rule first asks for it: a read may be a call into the browser's
// engine, and an ancestor's markup may be the half of the page, shared by all its links. For the same reason
// what a long text holds is looked for once.
class PageFacts {
public:
    class Node {
    public:
        explicit Node(const Element& element) : m_element(element) {}

        const Element& Self() const { return m_element; }
        const QString& Read(ElementText which) {
            std::optional<QString>& kept = m_texts.at(static_cast<size_t>(which));
            if (!kept)
                kept = m_element.Read(which);
            return *kept;
        }
        // part: a text of the program's own, which keeps its address.
        bool Holds(ElementText which, const char16_t* part, const QString& expanded) {
            const QString& text = Read(which);
            if (text.size() < LongText)
                return Has(text, expanded);
            const auto [answer, isNew] = m_answers.try_emplace({which, part});
            if (isNew)
                answer->second = Has(text, expanded);
            return answer->second;
        }

        bool IsLarge() const {
            return std::any_of(m_texts.begin(), m_texts.end(),
                               [](const auto& text) { return text && text->size() >= LargeText; });
        }

    private:
        static constexpr qsizetype LongText = 1000;
        static constexpr qsizetype LargeText = 20000;

        Element m_element;
        std::array<std::optional<QString>, static_cast<size_t>(ElementText::Text) + 1> m_texts;
        std::map<std::pair<ElementText, const char16_t*>, bool> m_answers;
    };

    Node& Of(const Element& element) { return m_nodes.try_emplace(element.Node(), element).first->second; }
    // For the next links of the same page: only what holds a good part of the page is kept, which many links
    // have above them. All LinkFacts of before are void.
    void ForgetSmall() {
        std::erase_if(m_nodes, [](const auto& entry) { return !entry.second.IsLarge(); });
    }

private:
    std::unordered_map<int, Node> m_nodes;
};

// One link and its surroundings.
class LinkFacts {
public:
    // Links that are judged together share what they have in common.
    explicit LinkFacts(const Element& link, std::shared_ptr<PageFacts> page = std::make_shared<PageFacts>())
        : m_page(std::move(page)), m_lineage{&m_page->Of(link)} {}

    const Element& Link() const { return m_lineage[0]->Self(); }
    const QString& Href() { return m_lineage[0]->Read(ElementText::Href); }
    const QString& HostName() { return m_lineage[0]->Read(ElementText::HostName); }
    const QString& Id() { return m_lineage[0]->Read(ElementText::Id); }

    // n = 0 is the link, 1 its parent and so on. A missing ancestor reads as empty text.
    const QString& Text(int n = 0) { return Node(n).Read(ElementText::InnerText); }
    const QString& InnerHTML(int n = 0) { return Node(n).Read(ElementText::InnerHTML); }
    const QString& OuterHTML(int n = 0) { return Node(n).Read(ElementText::OuterHTML); }
    QString TagName(int n) { return Node(n).Read(ElementText::TagName); }
    QString Attribute(int n, const QString& name) { return Node(n).Self().GetAttribute(name); }
    bool Holds(int n, ElementText which, const char16_t* part, const QString& expanded) {
        return Node(n).Holds(which, part, expanded);
    }

private:
    PageFacts::Node& Node(int n) {
        PageFacts::Node*& node = m_lineage.at(static_cast<size_t>(n));
        if (!node)
            node = &m_page->Of(Node(n - 1).Self().ParentElement());
        return *node;
    }

    std::shared_ptr<PageFacts> m_page;
    std::array<PageFacts::Node*, 8> m_lineage;
};

} // namespace qlm
