// SPDX-License-Identifier: MIT
#include "platform/sim/SimDocument.h"

#include "platform/sim/SimAddress.h"
#include "platform/sim/SimForms.h"
#include "platform/sim/SimMarkup.h"
#include "platform/sim/SimText.h"

#include <algorithm>
#include <array>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct PseudoAttribute {
    QStringView name;
    ElementText property;
};

constexpr std::array<PseudoAttribute, 4> pseudoAttributes{{
    {u"innertext", ElementText::InnerText},
    {u"innerhtml", ElementText::InnerHTML},
    {u"outerhtml", ElementText::OuterHTML},
    {u"classname", ElementText::ClassName},
}};

struct State {
    QStringView name;
    bool (*holds)(const SimTree& tree, int node);
};

constexpr std::array<State, 3> states{{
    {u"checked", IsTicked},
    {u"selected", IsSelected},
    {u"disabled", IsDisabled},
}};

bool HoldsValue(const SimNode& node) {
    return node.Is(u"input") || node.Is(u"textarea");
}

bool CanHaveFocus(const SimTree& tree, int node) {
    const SimNode& element = tree.At(node);
    const bool isControl = HoldsValue(element) || element.Is(u"select") || element.Is(u"button");
    if (isControl)
        return !IsDisabled(tree, node) && TypeOf(tree, node) != u"hidden";
    const bool isLink = (element.Is(u"a") || element.Is(u"area")) && tree.HasAttribute(node, u"href");
    return isLink || element.Is(u"iframe") || tree.HasAttribute(node, u"tabindex");
}

} // namespace

SimDocument::SimDocument(SimDocumentHost& host, const QString& html, const QString& url)
    : m_host(&host), m_tree(html), m_url(url) {}

SimDocumentHost& SimDocument::Present() const {
    if (!m_host)
        throw BrowserError();
    return *m_host;
}

void SimDocument::DropOldCaches() {
    if (m_cachedChanges == m_tree.Changes())
        return;
    m_cachedChanges = m_tree.Changes();
    m_bodyTexts.clear();
    m_sets.clear();
    m_ids.clear();
    m_baseURL.clear();
    m_tree.Walk(m_tree.Root(), [&](int element) {
        if (m_baseURL.isEmpty() && m_tree.At(element).Is(u"base") && m_tree.HasAttribute(element, u"href"))
            m_baseURL = ResolveAddress(m_url, m_tree.Attribute(element, u"href"));
        const QString id = m_tree.Attribute(element, u"id");
        if (!id.isEmpty() && !m_ids.contains(id))
            m_ids.insert(id, element);
        return true;
    });
    if (m_baseURL.isEmpty())
        m_baseURL = m_url;
}

const QString& SimDocument::BaseURL() {
    DropOldCaches();
    return m_baseURL;
}

QString SimDocument::Title() const {
    const std::vector<int> titles = m_tree.Elements(m_tree.Root(), u"title");
    return titles.empty() ? QString() : m_tree.TextContent(titles.front()).simplified();
}

QString SimDocument::Address() {
    Present();
    return m_url;
}

int SimDocument::Body() {
    Present();
    return m_tree.Body();
}

bool SimDocument::HasLinks() {
    Present();
    return true;
}

QString SimDocument::BodyText(ElementText which) {
    Present();
    DropOldCaches();
    const auto kept = m_bodyTexts.find(which);
    if (kept != m_bodyTexts.end())
        return kept->second;
    const int body = m_tree.Body();
    return m_bodyTexts[which] = body ? Read(body, which) : QString();
}

std::vector<int> SimDocument::Collect(ElementSet set, const QString& argument) {
    Present();
    DropOldCaches();
    const auto key = std::pair(set, argument);
    const auto kept = m_sets.find(key);
    if (kept != m_sets.end())
        return kept->second;
    return m_sets[key] = Gather(set, argument);
}

std::vector<int> SimDocument::Gather(ElementSet set, const QString& argument) const {
    switch (set) {
    case ElementSet::Images:
        return m_tree.Elements(m_tree.Root(), u"img");
    case ElementSet::Scripts:
        return m_tree.Elements(m_tree.Root(), u"script");
    case ElementSet::ByTag:
        return m_tree.Elements(m_tree.Root(), argument);
    case ElementSet::ById:
    case ElementSet::Named:
        return GatherNamed(set, argument);
    case ElementSet::Links:
    case ElementSet::ByName:
        break;
    }
    std::vector<int> found;
    m_tree.Walk(m_tree.Root(), [&](int element) {
        const SimNode& node = m_tree.At(element);
        const bool isLink =
            (node.Is(u"a") || node.Is(u"area")) && !node.isForeign && m_tree.HasAttribute(element, u"href");
        if (set == ElementSet::Links ? isLink
                                     : m_tree.Attribute(element, u"name") == argument && !argument.isEmpty())
            found.push_back(element);
        return true;
    });
    return found;
}

std::vector<int> SimDocument::GatherNamed(ElementSet set, const QString& argument) const {
    std::vector<int> found;
    if (set == ElementSet::Named)
        found = Gather(ElementSet::ByName, argument);
    const int withId = argument.isEmpty() ? 0 : m_ids.value(argument, 0);
    if (withId != 0 && std::find(found.begin(), found.end(), withId) == found.end())
        found.push_back(withId);
    return found;
}

int SimDocument::ById(const QString& id) {
    Present();
    DropOldCaches();
    return id.isEmpty() ? 0 : m_ids.value(id, 0);
}

int SimDocument::ActiveElement() {
    Present();
    return m_focus && m_tree.IsInPage(m_focus) ? m_focus : m_tree.Body();
}

QString SimDocument::ReadText(int node) const {
    return HoldsValue(m_tree.At(node)) ? ValueOf(m_tree, node) : InnerText(m_tree, node);
}

QString SimDocument::ReadAddress(int node, ElementText which) {
    const bool isSource = which == ElementText::Src || which == ElementText::NameProp;
    const QString attribute = isSource ? u"src"_s : u"href"_s;
    if (!m_tree.HasAttribute(node, attribute))
        return {};
    const QString address = ResolveAddress(BaseURL(), m_tree.Attribute(node, attribute));
    if (which == ElementText::HostName)
        return HostOf(address);
    return which == ElementText::NameProp ? FileNameOf(address) : address;
}

QString SimDocument::AddressOfForm(int form, int pressed) {
    const bool isButtonsOwn =
        pressed && IsButton(m_tree, pressed) && m_tree.HasAttribute(pressed, u"formaction");
    return ResolveAddress(BaseURL(), isButtonsOwn ? m_tree.Attribute(pressed, u"formaction")
                                                  : m_tree.Attribute(form, u"action"));
}

QString SimDocument::Read(int node, ElementText which) {
    Present();
    switch (which) {
    case ElementText::InnerText:
        return ReadText(node);
    case ElementText::InnerHTML:
        return InnerHTML(m_tree, node);
    case ElementText::OuterHTML:
        return OuterHTML(m_tree, node);
    case ElementText::Id:
        return m_tree.Attribute(node, u"id");
    case ElementText::Name:
        return m_tree.Attribute(node, u"name");
    case ElementText::Value:
        return ValueOf(m_tree, node);
    case ElementText::Href:
    case ElementText::HostName:
    case ElementText::NameProp:
    case ElementText::Src:
        return ReadAddress(node, which);
    case ElementText::Alt:
        return m_tree.Attribute(node, u"alt");
    case ElementText::Title:
        return m_tree.Attribute(node, u"title");
    case ElementText::ClassName:
        return m_tree.Attribute(node, u"class");
    case ElementText::TagName:
        return m_tree.At(node).tag;
    case ElementText::Type:
        return TypeOf(m_tree, node);
    case ElementText::Text:
        return m_tree.At(node).Is(u"script") ? m_tree.TextContent(node) : QString();
    case ElementText::SentTo:
        return CanSend(m_tree, node) && FormOf(m_tree, node) ? AddressOfForm(FormOf(m_tree, node), node)
                                                             : QString();
    }
    return {};
}

QString SimDocument::Attribute(int node, const QString& name) {
    Present();
    for (const PseudoAttribute& pseudo : pseudoAttributes)
        if (name.compare(pseudo.name, Qt::CaseInsensitive) == 0)
            return Read(node, pseudo.property);
    for (const State& state : states)
        if (name.compare(state.name, Qt::CaseInsensitive) == 0)
            return state.holds(m_tree, node) ? state.name.toString() : QString();
    return m_tree.Attribute(node, name);
}

bool SimDocument::HasAttribute(int node, const QString& name) {
    Present();
    return m_tree.HasAttribute(node, name);
}

int SimDocument::Parent(int node) {
    Present();
    const int parent = m_tree.At(node).parent;
    return parent == m_tree.Root() ? 0 : parent;
}

std::vector<int> SimDocument::Descendants(int node, const QString& tag) {
    Present();
    return m_tree.Elements(node, tag);
}

std::shared_ptr<DocumentBackend> SimDocument::FrameDocument(int node) {
    return Present().DocumentInFrame(*this, node);
}

void SimDocument::SetInnerText(int node, const QString& text) {
    SimDocumentHost& host = Present();
    if (HoldsValue(m_tree.At(node)))
        return SetValue(node, text);
    m_tree.SetText(node, text);
    host.Touched();
    host.ValueWritten(*this, node);
}

void SimDocument::SetInnerHTML(int node, const QString& html) {
    SimDocumentHost& host = Present();
    m_tree.SetInnerHTML(node, html);
    host.Touched();
}

void SimDocument::SetValue(int node, const QString& value) {
    SimDocumentHost& host = Present();
    SetValueOf(m_tree, node, value);
    host.Touched();
    host.ValueWritten(*this, node);
}

void SimDocument::SetAttribute(int node, const QString& name, const QString& value) {
    SimDocumentHost& host = Present();
    m_tree.SetAttribute(node, name, value);
    host.Touched();
}

void SimDocument::SetSelected(int option, bool isSelected) {
    SimDocumentHost& host = Present();
    if (!m_tree.At(option).Is(u"option"))
        throw BrowserError();
    ChooseOption(m_tree, option, isSelected);
    host.Touched();
}

void SimDocument::Click(int node) {
    SimDocumentHost& host = Present();
    host.Touched();
    host.ElementClicked(*this, node);
}

void SimDocument::Submit(int node) {
    SimDocumentHost& host = Present();
    const int form = m_tree.At(node).Is(u"form") ? node : FormOf(m_tree, node);
    if (form == 0)
        throw BrowserError();
    host.Touched();
    host.FormSubmitted(*this, form);
}

void SimDocument::Focus(int node) {
    SimDocumentHost& host = Present();
    host.Touched();
    if (!CanHaveFocus(m_tree, node) || m_focus == node)
        return;
    m_focus = node;
    host.GotFocus(*this, node);
}

void SimDocument::FireChange(int node) {
    SimDocumentHost& host = Present();
    host.Touched();
    host.ChangeFired(*this, node);
}

void SimDocument::ScrollIntoView(int node) {
    Present().Touched();
    Q_UNUSED(node)
}

void SimDocument::ScrollToEnd() {
    SimDocumentHost& host = Present();
    host.Touched();
    host.ScrolledToEnd(*this);
}

} // namespace qlm
