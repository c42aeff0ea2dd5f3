// SPDX-License-Identifier: MIT
#include "platform/qt/PageDocument.h"

#include <array>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// How much text of neighbouring nodes is fetched along with the one that was asked for.
constexpr int neighbourCharacters = 256 * 1024;
constexpr int lineageCharacters = 40 * 1024;
constexpr size_t neighbourLimit = 5000;
constexpr size_t parentLimit = 200;
constexpr size_t lineageLimit = 4;
constexpr int lineageLevels = 5;

// The bridge's names, in the order of ElementText.
constexpr std::array propertyNames = {
    "InnerText", "InnerHTML", "OuterHTML", "Id",    "Name",      "Value",   "Href", "HostName",
    "NameProp",  "Src",       "Alt",       "Title", "ClassName", "TagName", "Type", "Text",
};

// The bridge's names, in the order of ElementSet.
constexpr std::array setNames = {"Links", "Images", "Scripts", "ByTag", "ByName"};

struct PseudoAttribute {
    const char* name;
    ElementText which;
};

constexpr std::array pseudoAttributes = {
    PseudoAttribute{"innertext", ElementText::InnerText},
    PseudoAttribute{"innerhtml", ElementText::InnerHTML},
    PseudoAttribute{"outerhtml", ElementText::OuterHTML},
    PseudoAttribute{"class", ElementText::ClassName},
    PseudoAttribute{"classname", ElementText::ClassName},
};

QString NameOf(ElementText which) {
    return QString::fromLatin1(propertyNames.at(static_cast<size_t>(which)));
}

bool IsMarkup(ElementText which) {
    return which == ElementText::OuterHTML || which == ElementText::InnerHTML ||
           which == ElementText::InnerText;
}

QJsonArray ToJson(const std::vector<int>& nodes) {
    QJsonArray array;
    for (const int node : nodes)
        array.append(node);
    return array;
}

} // namespace

PageDocument::PageDocument(QtPump& pump, PageCalls& calls, DocumentOwner& owner, QString id)
    : m_pump(pump), m_calls(calls), m_owner(owner), m_id(std::move(id)) {}

PageCache& PageDocument::Cache() {
    Check();
    m_cache.EnterTurn(m_pump.Queue().Turn());
    return m_cache;
}

void PageDocument::Check() const {
    if (!m_owner.IsPresent(this))
        throw BrowserError();
}

QVariant PageDocument::Call(const QString& name, const QJsonArray& arguments) {
    Check();
    const std::optional<PageCalls::Answer> answer = m_calls.Call(m_id, name, arguments);
    if (!answer || !IsFromHere(*answer) || !answer->isDone)
        throw BrowserError();
    return answer->value;
}

// Another document may have come that nobody knows of yet.
bool PageDocument::IsFromHere(const PageCalls::Answer& answer) {
    if (answer.document != m_id)
        m_owner.OnOtherDocument(answer.document);
    return answer.document == m_id;
}

// An act that the page takes long over, or that makes it go, has been done although no answer comes.
void PageDocument::Act(const QString& name, const QJsonArray& arguments) {
    Check();
    if (!m_calls.CanCall())
        throw BrowserError();
    const std::optional<PageCalls::Answer> answer = m_calls.Call(m_id, name, arguments);
    m_pump.Queue().EndTurn();
    if (answer && (!IsFromHere(*answer) || !answer->isDone))
        throw BrowserError();
}

bool PageDocument::Look() {
    if (Cache().Look())
        return true;
    const std::optional<PageCalls::Answer> answer =
        m_calls.Call(m_id, u"snapshot"_s, {m_cache.Tree().Version()});
    if (!answer || !IsFromHere(*answer) || !answer->isDone)
        return false;
    const QVariantMap told = answer->value.toMap();
    Cache().TakeLook(told);
    m_owner.OnAddress(told.value(u"url"_s).toString());
    return true;
}

const PageLook& PageDocument::NeedLook() {
    if (!Look())
        throw BrowserError();
    return *Cache().Look();
}

// A page that is busy with itself has no body yet, as far as the waits are concerned.
int PageDocument::Body() {
    return Look() ? Cache().Look()->body : 0;
}

bool PageDocument::HasLinks() {
    return Look();
}

QString PageDocument::BodyText(ElementText which) {
    const PageLook& look = NeedLook();
    if (look.body == 0)
        return {};
    if (which == ElementText::InnerText)
        return look.text;
    const PageTree& tree = m_cache.Tree();
    return which == ElementText::InnerHTML ? tree.Markup() : tree.BodyTag() + tree.Markup() + u"</body>"_s;
}

std::vector<int> PageDocument::Collect(ElementSet set, const QString& argument) {
    if (set == ElementSet::Links)
        NeedLook();
    if (const std::vector<int>* known = Cache().Collection(set, argument))
        return *known;
    const QString setName = QString::fromLatin1(setNames.at(static_cast<size_t>(set)));
    const std::vector<int> nodes = UnpackNodes(Call(u"collect"_s, {setName, argument}));
    Cache().SetCollection(set, argument, nodes);
    return nodes;
}

int PageDocument::ById(const QString& id) {
    NeedLook();
    return Cache().Tree().NodeOfId(id);
}

int PageDocument::ActiveElement() {
    return Call(u"activeElement"_s, {}).toInt();
}

QString PageDocument::Read(int node, ElementText which) {
    PageCache& cache = Cache();
    if (cache.Look() && node == cache.Look()->body && IsMarkup(which))
        return BodyText(which);
    if (!cache.Text(node, which)) {
        if (cache.IsGrouped(node))
            ReadTogether(cache.Following(node, neighbourLimit), which);
        else
            ReadTogether(IsMarkup(which) ? cache.Lineage(node, lineageLimit) : std::vector<int>{node}, which);
    }
    const QString* text = Cache().Text(node, which);
    if (!text)
        throw BrowserError();
    return *text;
}

void PageDocument::ReadTogether(const std::vector<int>& nodes, ElementText which) {
    const int budget = Cache().IsGrouped(nodes.front()) ? neighbourCharacters : lineageCharacters;
    const std::vector<QString> texts = UnpackTexts(Call(u"read"_s, {ToJson(nodes), NameOf(which), budget}));
    PageCache& cache = Cache();
    for (size_t i = 0; i < std::min(nodes.size(), texts.size()); ++i)
        cache.SetText(nodes[i], which, texts[i]);
}

QString PageDocument::Attribute(int node, const QString& name) {
    for (const PseudoAttribute& pseudo : pseudoAttributes)
        if (name.compare(QLatin1String(pseudo.name), Qt::CaseInsensitive) == 0)
            return Read(node, pseudo.which);
    return Call(u"attribute"_s, {node, name}).toString();
}

bool PageDocument::HasAttribute(int node, const QString& name) {
    return Call(u"hasAttribute"_s, {node, name}).toBool();
}

int PageDocument::Parent(int node) {
    if (const std::optional<int> known = Cache().Parent(node))
        return *known;
    const std::vector<int> nodes = Cache().Following(node, parentLimit);
    const std::vector<int> rows = UnpackNodes(Call(u"ancestors"_s, {ToJson(nodes), lineageLevels}));
    PageCache& cache = Cache();
    for (size_t i = 0; i < rows.size(); ++i) {
        const int child = i % lineageLevels == 0 ? nodes.at(i / lineageLevels) : rows[i - 1];
        if (child != 0)
            cache.SetParent(child, rows[i]);
    }
    return cache.Parent(node).value_or(0);
}

std::vector<int> PageDocument::Descendants(int node, const QString& tag) {
    const std::vector<int> nodes = UnpackNodes(Call(u"descendants"_s, {node, tag}));
    Cache().AddGroup(nodes);
    return nodes;
}

void PageDocument::SetInnerText(int node, const QString& text) {
    Act(u"setInnerText"_s, {node, text});
}

void PageDocument::SetInnerHTML(int node, const QString& html) {
    Act(u"setInnerHTML"_s, {node, html});
}

void PageDocument::SetValue(int node, const QString& value) {
    Act(u"setValue"_s, {node, value});
}

void PageDocument::SetAttribute(int node, const QString& name, const QString& value) {
    Act(u"setAttribute"_s, {node, name, value});
}

void PageDocument::Click(int node) {
    Act(u"click"_s, {node});
}

void PageDocument::Submit(int node) {
    Act(u"submit"_s, {node});
}

void PageDocument::Focus(int node) {
    Act(u"focus"_s, {node});
}

void PageDocument::ScrollIntoView(int node) {
    Act(u"scrollIntoView"_s, {node});
}

void PageDocument::ScrollToEnd() {
    Act(u"scrollToEnd"_s, {});
}

} // namespace qlm
