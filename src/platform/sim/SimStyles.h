// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <vector>

namespace qlm {

class SimTree;

// What the style elements of a page say, as far as a simulated page needs it: selectors of tag names, ids,
// classes and
// "*", one within another. Rules with any other selector, at-rules and sheets from elsewhere say nothing.
class SimStyles {
public:
    explicit SimStyles(const SimTree& tree);

    bool IsEmpty() const { return m_rules.empty(); }
    // What applies to the element itself, its own style attribute included; lower case, empty when nothing
    // does.
    QString Value(const SimTree& tree, int node, const QString& property) const;

private:
    // One element of a selector: "tag#id.class.class".
    struct Part {
        QString tag;
        QString id;
        QStringList classes;
    };
    struct Rule {
        std::vector<Part> parts; // the last is the element itself
        int weight = 0;
        QString value;
    };

    void Read(const QString& sheet);
    void ReadRule(const QStringList& selectors, const QString& declarations);
    static bool ReadSelector(const QString& selector, Rule& rule);
    static bool Fits(const SimTree& tree, int node, const Part& part);
    static bool Applies(const SimTree& tree, int node, const Rule& rule);

    std::map<QString, std::vector<Rule>> m_rules; // by property
};

// Of declarations: the value of one property, lower case; empty when it is not set.
QString StyleValue(const QString& declarations, QStringView property);

} // namespace qlm
