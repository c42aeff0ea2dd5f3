// SPDX-License-Identifier: MIT
#include "platform/sim/SimMarkup.h"

#include <algorithm>
#include <array>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<QStringView, 16> voidTags{u"area",  u"base",  u"basefont", u"bgsound", u"br",    u"col",
                                               u"embed", u"frame", u"hr",       u"img",     u"input", u"link",
                                               u"meta",  u"param", u"source",   u"wbr"};
constexpr std::array<QStringView, 8> rawTextTags{u"style",   u"script",   u"xmp",       u"iframe",
                                                 u"noembed", u"noframes", u"plaintext", u"noscript"};

bool Holds(const auto& tags, const QString& tag) {
    return std::ranges::find(tags, QStringView(tag)) != tags.end();
}

QString EscapedText(QString text) {
    text.replace(u'&', u"&amp;"_s).replace(QChar(QChar::Nbsp), u"&nbsp;"_s);
    return text.replace(u'<', u"&lt;"_s).replace(u'>', u"&gt;"_s);
}

QString EscapedAttribute(QString text) {
    text.replace(u'&', u"&amp;"_s).replace(QChar(QChar::Nbsp), u"&nbsp;"_s);
    return text.replace(u'"', u"&quot;"_s);
}

class Writer {
public:
    explicit Writer(const SimTree& tree) : m_tree(tree) {}

    void WriteChildren(int node) {
        for (const int child : m_tree.At(node).children)
            Write(child);
    }

    void Write(int number) {
        const SimNode& node = m_tree.At(number);
        switch (node.kind) {
        case SimNode::Kind::Document:
            WriteChildren(number);
            break;
        case SimNode::Kind::Doctype:
            html += u"<!DOCTYPE "_s + node.text + u'>';
            break;
        case SimNode::Kind::Comment:
            html += u"<!--"_s + node.text + u"-->"_s;
            break;
        case SimNode::Kind::Text:
            html += Holds(rawTextTags, m_tree.At(node.parent).tag) ? node.text : EscapedText(node.text);
            break;
        case SimNode::Kind::Element:
            WriteElement(number, node);
            break;
        }
    }

    QString html;

private:
    void WriteElement(int number, const SimNode& node) {
        html += u'<' + node.tag;
        for (const auto& [name, value] : node.attributes)
            html += u' ' + name + u"=\""_s + EscapedAttribute(value) + u'"';
        html += u'>';
        if (Holds(voidTags, node.tag))
            return;
        WriteChildren(number);
        html += u"</"_s + node.tag + u'>';
    }

    const SimTree& m_tree;
};

} // namespace

QString InnerHTML(const SimTree& tree, int node) {
    Writer writer(tree);
    writer.WriteChildren(node);
    return writer.html;
}

QString OuterHTML(const SimTree& tree, int node) {
    Writer writer(tree);
    writer.Write(node);
    return writer.html;
}

} // namespace qlm
