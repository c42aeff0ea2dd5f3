// SPDX-License-Identifier: MIT
#include "platform/sim/SimStyles.h"

#include "platform/sim/SimTree.h"

#include <QRegularExpression>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int weightOfId = 10'000;
constexpr int weightOfClass = 100;
constexpr int weightOfAttribute = 1'000'000;
constexpr int weightOfImportant = 10'000'000;

QString WithoutImportant(QString value) {
    return value.remove(u"!important"_s).trimmed().toLower();
}

} // namespace

QString StyleValue(const QString& declarations, QStringView property) {
    QString value;
    for (const QString& declaration : declarations.split(u';'))
        if (declaration.section(u':', 0, 0).trimmed().compare(property, Qt::CaseInsensitive) == 0)
            value = WithoutImportant(declaration.section(u':', 1));
    return value;
}

SimStyles::SimStyles(const SimTree& tree) {
    for (const int style : tree.Elements(tree.Root(), u"style"))
        Read(tree.TextContent(style));
}

void SimStyles::Read(const QString& sheet) {
    static const QRegularExpression comment(u"/\\*.*?(\\*/|$)|<!--|-->"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    const QString text = QString(sheet).remove(comment);
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype open = text.indexOf(u'{', at);
        if (open < 0)
            return;
        const QString head = text.mid(at, open - at).section(u';', -1).trimmed();
        // At-rules may hold rules of their own.
        qsizetype close = open + 1;
        for (int depth = 1; close < text.size() && depth > 0; ++close)
            depth += text[close] == u'{' ? 1 : text[close] == u'}' ? -1 : 0;
        if (!head.startsWith(u'@'))
            ReadRule(head.split(u','), text.mid(open + 1, close - open - 2));
        at = close;
    }
}

void SimStyles::ReadRule(const QStringList& selectors, const QString& declarations) {
    for (const QString& selector : selectors) {
        Rule rule;
        if (!ReadSelector(selector.simplified(), rule))
            continue;
        for (const QString& declaration : declarations.split(u';')) {
            const QString property = declaration.section(u':', 0, 0).trimmed().toLower();
            Rule own = rule;
            own.value = WithoutImportant(declaration.section(u':', 1));
            own.weight += declaration.contains(u"!important"_s) ? weightOfImportant : 0;
            if (!property.isEmpty() && !own.value.isEmpty())
                m_rules[property].push_back(own);
        }
    }
}

bool SimStyles::ReadSelector(const QString& selector, Rule& rule) {
    static const QRegularExpression known(u"^(\\*|[a-z][\\w-]*)?([#.][\\w-]+)*$"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression piece(u"[#.]?[\\w-]+"_s);
    for (const QString& text : selector.split(u' ')) {
        if (text.isEmpty() || !known.match(text).hasMatch())
            return false;
        Part& part = rule.parts.emplace_back();
        for (auto found = piece.globalMatch(text); found.hasNext();) {
            const QString word = found.next().captured();
            if (word.startsWith(u'#'))
                part.id = word.mid(1);
            else if (word.startsWith(u'.'))
                part.classes += word.mid(1);
            else
                part.tag = word.toLower();
        }
        rule.weight += (part.id.isEmpty() ? 0 : weightOfId) +
                       weightOfClass * static_cast<int>(part.classes.size()) + (part.tag.isEmpty() ? 0 : 1);
    }
    return true;
}

bool SimStyles::Fits(const SimTree& tree, int node, const Part& part) {
    if (!tree.At(node).IsElement() || (!part.tag.isEmpty() && tree.At(node).tag != part.tag) ||
        (!part.id.isEmpty() && tree.Attribute(node, u"id") != part.id))
        return false;
    if (part.classes.isEmpty())
        return true;
    const QStringList own = tree.Attribute(node, u"class").simplified().split(u' ');
    return std::all_of(part.classes.begin(), part.classes.end(),
                       [&own](const QString& wanted) { return own.contains(wanted); });
}

bool SimStyles::Applies(const SimTree& tree, int node, const Rule& rule) {
    if (!Fits(tree, node, rule.parts.back()))
        return false;
    size_t left = rule.parts.size() - 1;
    for (node = tree.At(node).parent; left > 0 && node != 0; node = tree.At(node).parent)
        if (Fits(tree, node, rule.parts[left - 1]))
            --left;
    return left == 0;
}

QString SimStyles::Value(const SimTree& tree, int node, const QString& property) const {
    QString value = StyleValue(tree.Attribute(node, u"style"), property);
    int weight = value.isEmpty() ? 0 : weightOfAttribute;
    const auto rules = m_rules.find(property);
    if (rules == m_rules.end())
        return value;
    // Of equal ones the later counts.
    for (const Rule& rule : rules->second)
        if (rule.weight >= weight && Applies(tree, node, rule)) {
            value = rule.value;
            weight = rule.weight;
        }
    return value;
}

} // namespace qlm
