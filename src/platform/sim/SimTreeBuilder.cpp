// SPDX-License-Identifier: MIT
#include "platform/sim/SimTreeBuilder.h"

#include "platform/sim/SimNoScript.h"

#include <gumbo.h>

#include <memory>

namespace qlm {

namespace {

constexpr int maxDepth = 512;

struct Output {
    Output(const QByteArray& source, GumboTag context) : bytes(source), options(kGumboDefaultOptions) {
        options.max_errors = 0;
        options.fragment_context = context;
        parsed = gumbo_parse_with_options(&options, bytes.constData(), static_cast<size_t>(bytes.size()));
    }
    ~Output() { gumbo_destroy_output(&options, parsed); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    // The tags of unknown elements point into the source.
    const QByteArray bytes;
    GumboOptions options;
    GumboOutput* parsed = nullptr;
};

QString TagName(const GumboElement& element) {
    if (element.tag != GUMBO_TAG_UNKNOWN)
        return QString::fromUtf8(gumbo_normalized_tagname(element.tag));
    GumboStringPiece piece = element.original_tag;
    gumbo_tag_from_original_text(&piece);
    return QString::fromUtf8(piece.data, static_cast<qsizetype>(piece.length)).toLower();
}

const GumboVector* ChildrenOf(const GumboNode* node) {
    if (node->type == GUMBO_NODE_DOCUMENT)
        return &node->v.document.children;
    if (node->type == GUMBO_NODE_ELEMENT || node->type == GUMBO_NODE_TEMPLATE)
        return &node->v.element.children;
    return nullptr;
}

const GumboNode* ChildAt(const GumboVector& children, unsigned int index) {
    return static_cast<const GumboNode*>(children.data[index]);
}

} // namespace

void SimTreeBuilder::BuildPage(const QString& html) {
    const Output output(WithNoScriptAsText(html).toUtf8(), GUMBO_TAG_LAST);
    const GumboNode* document = output.parsed->document;
    if (document->v.document.has_doctype) {
        SimNode doctype;
        doctype.kind = SimNode::Kind::Doctype;
        doctype.text = QString::fromUtf8(document->v.document.name);
        m_tree.Add(doctype, m_tree.Root());
    }
    AddTree(document, m_tree.Root());
}

void SimTreeBuilder::BuildFragment(const QString& html, int parent) {
    if (html.isEmpty())
        return;
    GumboTag context = gumbo_tag_enum(m_tree.At(parent).tag.toUtf8().constData());
    if (context == GUMBO_TAG_UNKNOWN || context == GUMBO_TAG_LAST)
        context = GUMBO_TAG_DIV;
    const Output output(WithNoScriptAsText(html).toUtf8(), context);
    AddTree(output.parsed->root, parent);
}

// Adds the children of `source` and all below them, in document order.
void SimTreeBuilder::AddTree(const GumboNode* source, int parent) {
    struct Step {
        const GumboNode* source;
        int parent;
        int depth;
    };
    std::vector<Step> waiting;
    auto pushChildren = [&waiting](const GumboNode* node, int under, int depth) {
        const GumboVector* children = ChildrenOf(node);
        for (unsigned int i = children ? children->length : 0; i > 0; --i)
            waiting.push_back({ChildAt(*children, i - 1), under, depth});
    };
    pushChildren(source, parent, 0);
    while (!waiting.empty()) {
        const Step step = waiting.back();
        waiting.pop_back();
        const int number = AddOne(step.source, step.parent);
        // Browsers hang what nests deeper under the last parent; readers of the tree may therefore recurse.
        pushChildren(step.source, step.depth < maxDepth ? number : step.parent, step.depth + 1);
    }
}

int SimTreeBuilder::AddOne(const GumboNode* source, int parent) {
    SimNode node;
    if (source->type == GUMBO_NODE_ELEMENT || source->type == GUMBO_NODE_TEMPLATE) {
        const GumboElement& element = source->v.element;
        node.tag = TagName(element);
        node.isForeign = element.tag_namespace != GUMBO_NAMESPACE_HTML;
        for (unsigned int i = 0; i < element.attributes.length; ++i) {
            const auto* attribute = static_cast<const GumboAttribute*>(element.attributes.data[i]);
            if (QLatin1StringView(attribute->name) == QLatin1StringView(NoScriptMark))
                node.tag = QStringLiteral("noscript");
            else
                node.attributes.emplace_back(QString::fromUtf8(attribute->name).toLower(),
                                             QString::fromUtf8(attribute->value));
        }
    } else {
        node.kind = source->type == GUMBO_NODE_COMMENT ? SimNode::Kind::Comment : SimNode::Kind::Text;
        node.text = QString::fromUtf8(source->v.text.text);
    }
    return m_tree.Add(std::move(node), parent);
}

} // namespace qlm
