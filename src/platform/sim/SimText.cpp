// SPDX-License-Identifier: MIT
#include "platform/sim/SimText.h"

#include "platform/sim/SimDisplay.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool KeepsWhiteSpace(const SimNode& node) {
    return node.tag == u"pre" || node.tag == u"listing" || node.tag == u"xmp";
}

bool IsFoldable(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

// Collects text line by line. Blocks ask for line breaks; only the largest number asked for between two texts
// counts.
class Collector {
public:
    explicit Collector(const SimTree& tree) : m_tree(tree) {}

    void Children(int number) {
        const bool isFolded = m_tree.At(number).Is(u"details") && !m_tree.HasAttribute(number, u"open");
        for (const int child : m_tree.At(number).children)
            if (!isFolded || m_tree.At(child).Is(u"summary"))
                Collect(child);
    }

    QString Take() const { return m_text; }

    // What the element and those around it say of the text inside.
    void BeginIn(int number) {
        if (!m_tree.At(number).IsElement())
            return;
        BeginIn(m_tree.At(number).parent);
        m_keepWhiteSpace = m_keepWhiteSpace || KeepsWhiteSpace(m_tree.At(number));
        TakeStyle(number);
    }

    void Collect(int number) {
        const SimNode& node = m_tree.At(number);
        if (node.kind == SimNode::Kind::Text)
            Text(node.text);
        if (!node.IsElement())
            return;
        switch (DisplayOf(m_tree, number)) {
        case Display::None:
            return;
        case Display::Inline:
            return node.Is(u"select") ? Select(number) : Styled(number, node);
        case Display::Block:
            return Block(number, node);
        case Display::Row:
            return Row(number);
        case Display::Cell:
            return Cell(number);
        case Display::Replaced:
            FlushSpace();
            m_atLineStart = false;
            return;
        case Display::Break:
            return LineBreak();
        }
    }

private:
    void Styled(int number, const SimNode& node) {
        const bool keptBefore = m_keepWhiteSpace;
        const bool hiddenBefore = m_isInvisible;
        m_keepWhiteSpace = m_keepWhiteSpace || KeepsWhiteSpace(node);
        const LetterCase caseBefore = m_letterCase;
        if (!node.attributes.empty() || !m_tree.Styles().IsEmpty())
            TakeStyle(number);
        Children(number);
        m_keepWhiteSpace = keptBefore;
        m_isInvisible = hiddenBefore;
        m_letterCase = caseBefore;
    }

    void TakeStyle(int number) {
        const QString visibility = m_tree.Style(number, u"visibility"_s);
        if (!visibility.isEmpty())
            m_isInvisible = visibility != u"visible";
        const QString whiteSpace = m_tree.Style(number, u"white-space"_s);
        if (!whiteSpace.isEmpty())
            m_keepWhiteSpace = whiteSpace.startsWith(u"pre");
        const QString letterCase = m_tree.Style(number, u"text-transform"_s);
        if (!letterCase.isEmpty())
            m_letterCase = letterCase == u"uppercase"    ? LetterCase::Upper
                           : letterCase == u"lowercase"  ? LetterCase::Lower
                           : letterCase == u"capitalize" ? LetterCase::Capitals
                                                         : LetterCase::Own;
    }

    QString InCase(const QString& text) const {
        if (m_letterCase == LetterCase::Upper)
            return text.toUpper();
        if (m_letterCase == LetterCase::Lower)
            return text.toLower();
        QString written = text;
        if (m_letterCase == LetterCase::Capitals)
            for (qsizetype i = 0; i < text.size(); ++i)
                if (i == 0 ? !IsInsideWord() : !text[i - 1].isLetterOrNumber())
                    written[i] = text[i].toUpper();
        return written;
    }

    bool IsInsideWord() const {
        return !m_atLineStart && !m_spaceWaits && !m_text.isEmpty() && m_text.back().isLetterOrNumber();
    }

    void Block(int number, const SimNode& node) {
        const int lines = node.tag == u"p" ? 2 : 1;
        RequireLines(lines);
        Styled(number, node);
        RequireLines(lines);
    }

    void Row(int number) {
        EndLine();
        Styled(number, m_tree.At(number));
        EndLine();
        if (HasRowAfter(number))
            Emit(u'\n');
    }

    void Cell(int number) {
        EndLine();
        Styled(number, m_tree.At(number));
        EndLine();
        if (HasSiblingAfter(number, u"td", u"th"))
            Emit(u'\t');
    }

    // Each choice of a list box stands on a line of its own; what lies around the list stays on its line
    // otherwise.
    void Select(int number) {
        for (const int option : m_tree.Elements(number, u"option")) {
            RequireLines(1);
            Children(option);
            RequireLines(1);
        }
    }

    bool HasSiblingAfter(int number, QStringView tag, QStringView otherTag) const {
        bool passed = false;
        for (const int sibling : m_tree.At(m_tree.At(number).parent).children) {
            if (passed && (m_tree.At(sibling).Is(tag) || m_tree.At(sibling).Is(otherTag)))
                return true;
            passed = passed || sibling == number;
        }
        return false;
    }

    bool HasRowAfter(int number) const {
        const int section = m_tree.At(number).parent;
        if (HasSiblingAfter(number, u"tr", u"tr"))
            return true;
        if (m_tree.At(section).Is(u"table"))
            return HasSiblingAfter(number, u"tbody", u"tfoot");
        return HasSiblingAfter(section, u"tbody", u"tfoot");
    }

    void Text(const QString& text) {
        if (m_isInvisible)
            return;
        for (const QChar c : InCase(text)) {
            if (m_keepWhiteSpace) {
                Emit(c);
                m_atLineStart = c == u'\n';
            } else if (!IsFoldable(c)) {
                FlushSpace();
                Emit(c);
                m_atLineStart = false;
            } else if (!m_atLineStart) {
                m_spaceWaits = true;
            }
        }
    }

    void LineBreak() {
        EndLine();
        Emit(u'\n');
    }

    void FlushSpace() {
        if (m_spaceWaits)
            Emit(u' ');
    }

    void EndLine() {
        m_spaceWaits = false;
        m_atLineStart = true;
    }

    void RequireLines(int lines) {
        EndLine();
        m_requiredLines = std::max(m_requiredLines, lines);
    }

    void Emit(QChar c) {
        m_spaceWaits = false;
        if (!m_text.isEmpty())
            m_text += QString(m_requiredLines, u'\n');
        m_requiredLines = 0;
        m_text += c;
    }

    enum class LetterCase { Own, Upper, Lower, Capitals };

    const SimTree& m_tree;
    QString m_text;
    LetterCase m_letterCase = LetterCase::Own;
    int m_requiredLines = 0;
    bool m_atLineStart = true;
    bool m_spaceWaits = false;
    bool m_keepWhiteSpace = false;
    bool m_isInvisible = false;
};

} // namespace

QString InnerText(const SimTree& tree, int node) {
    // A list box's choices are no boxes of their own.
    if (!IsShown(tree, node) || tree.At(node).Is(u"option"))
        return tree.TextContent(node);
    Collector collector(tree);
    collector.BeginIn(node);
    collector.Children(node);
    return collector.Take();
}

} // namespace qlm
