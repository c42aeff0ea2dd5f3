// SPDX-License-Identifier: MIT
#include "platform/qt/PageDocument.h"

#include "platform/qt/PageFrame.h"

#include <algorithm>
#include <array>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// How much text of neighbouring nodes is fetched along with the one that was asked for.
constexpr int neighbourCharacters = 256 * 1024;
constexpr int foreseenCharacters = 4 * 1024 * 1024;
constexpr int lineageCharacters = 40 * 1024;
constexpr size_t neighbourLimit = 5000;
constexpr size_t parentLimit = 200;
constexpr size_t lineageLimit = 4;
constexpr int lineageLevels = 5;

// The bridge's names, in the order of ElementText.
constexpr std::array propertyNames = {
    "InnerText", "InnerHTML", "OuterHTML", "Id",        "Name",    "Value", "Href", "HostName", "NameProp",
    "Src",       "Alt",       "Title",     "ClassName", "TagName", "Type",  "Text", "SentTo",
};

// The bridge's names, in the order of ElementSet.
constexpr std::array setNames = {"Links", "Images", "Scripts", "ByTag", "ByName", "ById", "Named"};

// The bridge's names, in the order of Question::Match.
constexpr std::array matchNames = {"Contains", "Equals", "EqualsTrimmed"};

// The bridge's names, in the order of Writing::Kind.
constexpr std::array writingNames = {"Value", "InnerText", "FrameMarkup", "PressInside"};

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

// Of an element, as it is now; an attribute says how the page has come.
constexpr std::array states = {"checked"_L1, "selected"_L1, "disabled"_L1};

QString NameOf(ElementText which) {
    return QString::fromLatin1(propertyNames.at(static_cast<size_t>(which)));
}

// What comes along with a collection that nobody had foreseen.
ElementText ReadMostOften(ElementSet set) {
    switch (set) {
    case ElementSet::Links:
        return ElementText::Href;
    case ElementSet::Images:
        return ElementText::NameProp;
    case ElementSet::Scripts:
        return ElementText::Text;
    default:
        return ElementText::Value;
    }
}

bool IsInOutline(ElementText which) {
    return which == ElementText::OuterHTML || which == ElementText::InnerHTML ||
           which == ElementText::TagName || which == ElementText::Id;
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

QString NameOf(ElementSet set) {
    return QString::fromLatin1(setNames.at(static_cast<size_t>(set)));
}

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
    const std::optional<PageCalls::Answer> answer =
        m_calls.Call(PageCalls::Kind::Question, m_id, name, arguments);
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
    const std::optional<PageCalls::Answer> answer = m_calls.Call(PageCalls::Kind::Act, m_id, name, arguments);
    m_pump.Queue().EndTurn();
    if (answer && (!IsFromHere(*answer) || !answer->isDone))
        throw BrowserError();
}

bool PageDocument::Look() {
    if (Cache().Look())
        return true;
    QJsonArray questions;
    for (const Question& question : m_cache.foresight.questions)
        questions.append(QJsonArray{NameOf(question.set), question.argument, NameOf(question.which),
                                    QLatin1String(matchNames.at(static_cast<size_t>(question.match))),
                                    question.wanted});
    const std::optional<PageCalls::Answer> answer =
        m_calls.Call(PageCalls::Kind::Question, m_id, u"look"_s, {m_cache.Tree().Version(), questions});
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

QString PageDocument::Address() {
    return NeedLook().address;
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
    return which == ElementText::InnerHTML ? tree.Markup() : tree.OuterMarkup();
}

void PageDocument::Foresee(const Foresight& foresight) {
    PageCache& cache = Cache();
    cache.foresight = foresight;
    // This turn's look has gone out without them: whatever they are about is read together.
    if (cache.Look())
        for (const Question& question : foresight.questions)
            if (!cache.Answer(question))
                cache.foresight.readings.push_back({question.set, question.argument, question.which});
    std::erase_if(cache.foresight.readings, [&](const Reading& reading) { return cache.IsRead(reading); });
}

void PageDocument::FetchForeseen() {
    Foresight wanted;
    wanted.readings.swap(Cache().foresight.readings);
    wanted.tree = std::exchange(Cache().foresight.tree, false) && !Cache().Tree().ArePlacesAsked();
    if (!wanted.readings.empty() || wanted.tree)
        Fetch(wanted);
}

void PageDocument::Fetch(const Foresight& wanted) {
    QJsonArray readings;
    for (const Reading& reading : wanted.readings)
        readings.append(
            QJsonArray{NameOf(reading.set), reading.argument, NameOf(reading.which), reading.level});
    const bool wantsPlaces = wanted.tree && !Cache().Tree().ArePlacesAsked();
    const QVariantMap told = Call(u"rest"_s, {readings, foreseenCharacters, wantsPlaces}).toMap();
    PageCache& cache = Cache();
    const QVariantList answers = told.value(u"readings"_s).toList();
    for (size_t i = 0; i < wanted.readings.size(); ++i)
        cache.TakeReading(wanted.readings[i], answers.value(static_cast<qsizetype>(i)));
    if (wantsPlaces && cache.Look())
        cache.Tree().TakePlaces(told.value(u"places"_s).toMap(), cache.Look()->body);
}

// Asks for less than a look where the tree is known already.
bool PageDocument::IsTreePresent() {
    PageCache& cache = Cache();
    if (!cache.IsTreeSure() && cache.Tree().Version() != 0 &&
        Call(u"version"_s, {}).toInt() == cache.Tree().Version())
        cache.SetTreeSure();
    return cache.IsTreeSure() || Look();
}

PageTree* PageDocument::Places() {
    if (!IsTreePresent())
        return nullptr;
    FetchForeseen();
    if (!Cache().Tree().ArePlacesAsked() && Look())
        Fetch({{}, {}, true});
    PageTree& tree = Cache().Tree();
    return tree.HasPlaces() ? &tree : nullptr;
}

std::vector<int> PageDocument::Collect(ElementSet set, const QString& argument) {
    if (!Cache().Collection(set, argument))
        FetchForeseen();
    if (!Cache().Collection(set, argument))
        Fetch({{}, {{set, argument, ReadMostOften(set)}}, false});
    return *Cache().Collection(set, argument);
}

// Of a single one the page itself knows best.
int PageDocument::ById(const QString& id) {
    if (Cache().foresight.tree || Cache().Tree().ArePlacesAsked())
        if (PageTree* tree = Places())
            return tree->NodeOfId(id);
    return Call(u"byId"_s, {id, 0}).toInt();
}

bool PageDocument::Any(const Question& question) {
    if (!Cache().foresight.questions.empty())
        NeedLook();
    const std::optional<bool> answer = Cache().Answer(question);
    return answer ? *answer : DocumentBackend::Any(question);
}

int PageDocument::ActiveElement() {
    return Call(u"activeElement"_s, {0}).toInt();
}

QString PageDocument::Read(int node, ElementText which) {
    PageCache& cache = Cache();
    if (cache.Look() && node == cache.Look()->body && IsMarkup(which))
        return BodyText(which);
    if (!cache.Text(node, which) && IsInOutline(which))
        if (const std::optional<QString> text = FromOutline(node, which))
            cache.SetText(node, which, *text);
    if (!cache.Text(node, which))
        FetchForeseen();
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

std::optional<QString> PageDocument::FromOutline(int node, ElementText which) {
    const PageTree* tree = Places();
    const int place = tree ? tree->PlaceOf(node) : -1;
    if (place < 0)
        return std::nullopt;
    const PageOutline& outline = tree->Outline();
    switch (which) {
    case ElementText::OuterHTML:
        return outline.Outer(place);
    case ElementText::InnerHTML:
        return outline.Inner(place);
    case ElementText::TagName:
        return outline.Tag(place);
    default:
        return outline.Attribute(place, u"id"_s).value_or(QString());
    }
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
    for (const QLatin1String state : states)
        if (name.compare(state, Qt::CaseInsensitive) == 0)
            return Call(u"state"_s, {node, state}).toBool() ? QString(state) : QString();
    if (const PageTree* tree = Places())
        if (const int place = tree->PlaceOf(node); place >= 0)
            return tree->Outline().Attribute(place, name).value_or(QString());
    if (!Cache().Attribute(node, name))
        Cache().SetAttribute(node, name, Call(u"attribute"_s, {node, name}).toString());
    return *Cache().Attribute(node, name);
}

bool PageDocument::HasAttribute(int node, const QString& name) {
    if (const PageTree* tree = Places())
        if (const int place = tree->PlaceOf(node); place >= 0)
            return tree->Outline().Attribute(place, name).has_value();
    return Call(u"hasAttribute"_s, {node, name}).toBool();
}

int PageDocument::Parent(int node) {
    if (const PageTree* tree = Places())
        if (const int parent = tree->ParentOf(node); parent != 0) {
            ExpectParents(*tree, node, parent);
            return parent;
        }
    if (const std::optional<int> known = Cache().Parent(node))
        return *known;
    const std::vector<int> nodes = Cache().Following(node, parentLimit);
    const std::vector<int> rows = UnpackNodes(Call(u"ancestors"_s, {ToJson(nodes), lineageLevels}));
    PageCache& cache = Cache();
    std::array<std::vector<int>, lineageLevels> levels;
    for (size_t i = 0; i < rows.size(); ++i) {
        const int child = i % lineageLevels == 0 ? nodes.at(i / lineageLevels) : rows[i - 1];
        if (child == 0 || cache.Parent(child))
            continue;
        cache.SetParent(child, rows[i]);
        if (rows[i] != 0)
            levels.at(i % lineageLevels).push_back(rows[i]);
    }
    // Who asks for the second ancestor of one link asks for that of the next one too.
    if (nodes.size() > 1)
        for (const std::vector<int>& level : levels)
            cache.AddGroup(level);
    return cache.Parent(node).value_or(0);
}

// Who asks for the parent of one link asks for that of the next one too.
void PageDocument::ExpectParents(const PageTree& tree, int node, int parent) {
    PageCache& cache = Cache();
    if (!cache.IsGrouped(node) || cache.IsGrouped(parent))
        return;
    std::vector<int> parents = cache.Following(node, neighbourLimit);
    std::transform(parents.begin(), parents.end(), parents.begin(),
                   [&](int next) { return tree.ParentOf(next); });
    std::erase(parents, 0);
    cache.AddGroup(parents);
}

void PageDocument::Expect(const std::vector<int>& nodes) {
    Cache().AddGroup(nodes);
}

std::vector<int> PageDocument::Descendants(int node, const QString& tag) {
    const std::vector<int> nodes = UnpackNodes(Call(u"descendants"_s, {node, tag}));
    Cache().AddGroup(nodes);
    return nodes;
}

std::shared_ptr<DocumentBackend> PageDocument::FrameDocument(int node) {
    const int frame = Call(u"frameDocument"_s, {node}).toInt();
    return frame ? std::make_shared<PageFrame>(shared_from_this(), frame) : nullptr;
}

void PageDocument::Write(const std::vector<Writing>& writings) {
    QJsonArray rows;
    for (const Writing& writing : writings)
        rows.append(QJsonArray{NameOf(writing.set), writing.argument,
                               QLatin1String(writingNames.at(static_cast<size_t>(writing.kind))),
                               writing.text});
    Act(u"write"_s, rows);
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

void PageDocument::SetSelected(int option, bool isSelected) {
    Act(u"setSelected"_s, {option, isSelected});
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

void PageDocument::FireChange(int node) {
    Act(u"fireChange"_s, {node});
}

void PageDocument::ScrollIntoView(int node) {
    Act(u"scrollIntoView"_s, {node});
}

void PageDocument::ScrollToEnd() {
    Act(u"scrollToEnd"_s, {0});
}

} // namespace qlm
