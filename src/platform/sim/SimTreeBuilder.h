// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimTree.h"

struct GumboInternalNode;

namespace qlm {

// Puts what the HTML parser made of a text into a tree.
class SimTreeBuilder {
public:
    explicit SimTreeBuilder(SimTree& tree) : m_tree(tree) {}
    void BuildPage(const QString& html);
    // As the children of `parent`, parsed as they would be inside such an element.
    void BuildFragment(const QString& html, int parent);

private:
    void AddTree(const GumboInternalNode* source, int parent);
    int AddOne(const GumboInternalNode* source, int parent);

    SimTree& m_tree;
};

} // namespace qlm
