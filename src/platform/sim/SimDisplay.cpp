// SPDX-License-Identifier: MIT
#include "platform/sim/SimDisplay.h"

#include <algorithm>
#include <array>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct TagDisplay {
    QStringView tag;
    Display display;
};

// In the order of the tags, which the look-up relies on; what stands in no row is inline.
// clang-format off
constexpr auto tagDisplays = std::to_array<TagDisplay>({
    {u"address", Display::Block},
    {u"applet", Display::Replaced},
    {u"article", Display::Block},
    {u"aside", Display::Block},
    {u"audio", Display::None},
    {u"base", Display::None},
    {u"blockquote", Display::Block},
    {u"body", Display::Block},
    {u"br", Display::Break},
    {u"canvas", Display::Replaced},
    {u"caption", Display::Block},
    {u"center", Display::Block},
    {u"datalist", Display::None},
    {u"dd", Display::Block},
    {u"details", Display::Block},
    {u"dir", Display::Block},
    {u"div", Display::Block},
    {u"dl", Display::Block},
    {u"dt", Display::Block},
    {u"embed", Display::Replaced},
    {u"fieldset", Display::Block},
    {u"figcaption", Display::Block},
    {u"figure", Display::Block},
    {u"footer", Display::Block},
    {u"form", Display::Block},
    {u"frameset", Display::None},
    {u"h1", Display::Block},
    {u"h2", Display::Block},
    {u"h3", Display::Block},
    {u"h4", Display::Block},
    {u"h5", Display::Block},
    {u"h6", Display::Block},
    {u"head", Display::None},
    {u"header", Display::Block},
    {u"hr", Display::Block},
    {u"html", Display::Block},
    {u"iframe", Display::Replaced},
    {u"img", Display::Replaced},
    {u"input", Display::Replaced},
    {u"legend", Display::Block},
    {u"li", Display::Block},
    {u"link", Display::None},
    {u"listing", Display::Block},
    {u"main", Display::Block},
    {u"menu", Display::Block},
    {u"meta", Display::None},
    {u"nav", Display::Block},
    {u"noembed", Display::None},
    {u"noframes", Display::None},
    {u"noscript", Display::None},
    {u"object", Display::Inline},
    {u"ol", Display::Block},
    {u"optgroup", Display::Block},
    {u"option", Display::Block},
    {u"p", Display::Block},
    {u"param", Display::None},
    {u"pre", Display::Block},
    {u"script", Display::None},
    {u"section", Display::Block},
    {u"style", Display::None},
    {u"summary", Display::Block},
    {u"svg", Display::Replaced},
    {u"table", Display::Block},
    {u"tbody", Display::Inline},
    {u"td", Display::Cell},
    {u"template", Display::None},
    {u"textarea", Display::Replaced},
    {u"tfoot", Display::Inline},
    {u"th", Display::Cell},
    {u"thead", Display::Inline},
    {u"title", Display::None},
    {u"tr", Display::Row},
    {u"ul", Display::Block},
    {u"video", Display::Replaced},
    {u"xmp", Display::Block},
});
// clang-format on

} // namespace

Display DisplayOf(const SimTree& tree, int number) {
    const SimNode& node = tree.At(number);
    const auto row = std::ranges::lower_bound(tagDisplays, QStringView(node.tag), {}, &TagDisplay::tag);
    const Display own = row != tagDisplays.end() && row->tag == node.tag ? row->display : Display::Inline;
    if (own == Display::None || (node.attributes.empty() && tree.Styles().IsEmpty()))
        return own;
    if (tree.HasAttribute(number, u"hidden"))
        return Display::None;
    const QString style = tree.Style(number, u"display"_s);
    if (style == u"none")
        return Display::None;
    if (style == u"block" && own == Display::Inline)
        return Display::Block;
    if (style.startsWith(u"inline") && own == Display::Block)
        return Display::Inline;
    return own;
}

bool IsShown(const SimTree& tree, int node) {
    for (; node != tree.Root(); node = tree.At(node).parent)
        if (node == 0 || DisplayOf(tree, node) == Display::None)
            return false;
    return true;
}

} // namespace qlm
