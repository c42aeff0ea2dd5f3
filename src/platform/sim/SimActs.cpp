// SPDX-License-Identifier: MIT
#include "platform/sim/SimAddress.h"
#include "platform/sim/SimBrowser.h"

#include <QUrl>
#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsClickable(const SimNode& node) {
    return node.Is(u"a") || node.Is(u"area") || node.Is(u"input") || node.Is(u"button") ||
           node.Is(u"label") || node.Is(u"option");
}

bool IsOwnWindow(const QString& target) {
    const QString name = target.toLower();
    return name.isEmpty() || name == u"_self" || name == u"_top" || name == u"_parent";
}

// The fields stand in for what a script could have read in the page at that moment.
std::vector<NavigationRequest::Input> InputsOf(const SimTree& tree) {
    std::vector<NavigationRequest::Input> inputs;
    for (const int input : tree.Elements(tree.Root(), u"input"))
        inputs.push_back({tree.Attribute(input, u"id"), tree.Attribute(input, u"name"), ValueOf(tree, input),
                          TypeOf(tree, input)});
    return inputs;
}

} // namespace

void SimBrowser::ElementClicked(int node) {
    SimTree& tree = Tree();
    if (!tree.IsInPage(node))
        return;
    const int control = tree.Closest(node, IsClickable);
    if (control && IsDisabled(tree, control) && !tree.At(control).Is(u"a"))
        return;
    const int acting = tree.Closest(node, [](const SimNode& n) {
        return std::ranges::any_of(n.attributes, [](const auto& a) { return a.first == u"data-on-click"; });
    });
    const QString type = control ? TypeOf(tree, control) : QString();
    const bool isToggle = type == u"checkbox" || type == u"radio";
    const bool isReplaced = acting && control && tree.IsInside(acting, control) && !isToggle;
    const QString acts = acting ? tree.Attribute(acting, u"data-on-click") : QString();
    if (control && !isReplaced)
        ClickControl(control);
    RunStandIns(acts);
}

void SimBrowser::ClickControl(int node) {
    SimTree& tree = Tree();
    const SimNode& control = tree.At(node);
    const QString type = TypeOf(tree, node);
    if (control.Is(u"a") || control.Is(u"area")) {
        if (tree.HasAttribute(node, u"href"))
            FollowAddress(ResolveAddress(m_document->BaseURL(), tree.Attribute(node, u"href")),
                          tree.Attribute(node, u"target"));
    } else if (control.Is(u"option")) {
        ChooseOption(tree, node);
    } else if (control.Is(u"label")) {
        const std::vector<int> inside = tree.Elements(node, u"input");
        const int named = tree.FindById(tree.Attribute(node, u"for"));
        if (named || !inside.empty())
            ElementClicked(named ? named : inside.front());
    } else if (type == u"checkbox" || type == u"radio") {
        Toggle(tree, node);
    } else if ((type == u"submit" || type == u"image") && FormOf(tree, node)) {
        SendForm(FormOf(tree, node), node);
    }
}

void SimBrowser::OpenElsewhere(const QString& url, const QString& target) {
    if (IsFrameName(target)) {
        SimRequest request;
        request.url = url;
        return LoadFrame(request, target, false);
    }
    Post([this, url] {
        const auto ask = events.newWindow2;
        if (!ask || !ask(url))
            windows += url;
    });
}

// A link was followed, by whomever.
void SimBrowser::FollowAddress(const QString& url, const QString& target) {
    const QString scheme = SchemeOf(url);
    if (scheme == u"javascript")
        return RunScript(url);
    if (RefusesNavigations() || !(scheme.startsWith(u"http") || scheme == u"about"))
        return;
    if (!IsOwnWindow(target))
        return OpenElsewhere(url, target);
    Load load;
    load.request.url = url;
    load.request.referrer = m_location;
    if (IsMoveInPage(url))
        return Start(load);
    NavigationRequest question;
    question.url = url;
    question.targetFrameName = target;
    Ask(load, question);
}

void SimBrowser::FormSubmitted(int form) {
    SendForm(form, 0);
}

void SimBrowser::SendForm(int form, int pressed) {
    SimTree& tree = Tree();
    const QString action = m_document->AddressOfForm(form, pressed);
    if (SchemeOf(action) == u"javascript")
        return RunScript(action);
    if (RefusesNavigations())
        return;
    const std::vector<SimField> fields = FieldsOf(tree, form, pressed);
    m_posted.push_back({action, fields});

    Load load;
    load.request.referrer = m_location;
    NavigationRequest question;
    question.isForm = true;
    question.inputs = InputsOf(tree);
    question.pageAddress = m_location;
    question.pageText = m_document->BodyText(ElementText::InnerText);
    if (tree.Attribute(form, u"method").compare(u"post", Qt::CaseInsensitive) == 0) {
        load.request.method = u"POST"_s;
        load.request.url = action;
        load.request.body = EncodedFields(fields).toLatin1();
        load.request.contentType = u"application/x-www-form-urlencoded"_s;
        question.headers = u"Content-Type: application/x-www-form-urlencoded\r\n"_s;
    } else {
        load.request.url = WithoutFragment(action).section(u'?', 0, 0) + u'?' + EncodedFields(fields);
    }
    question.url = load.request.url;
    const QString target = tree.Attribute(form, u"target");
    if (IsFrameName(target))
        return LoadFrame(load.request, target, false);
    if (!IsOwnWindow(target))
        return OpenElsewhere(load.request.url, target);
    Tell(question);
    Start(load);
}

void SimBrowser::ScrolledToEnd() {
    RunAllWith(u"data-on-scroll"_s);
}

void SimBrowser::ValueWritten(int node) {
    RunStandIns(Tree().Attribute(node, u"data-on-input"));
}

void SimBrowser::ChangeFired(int node) {
    RunStandIns(Tree().Attribute(node, u"data-on-change"));
}

void SimBrowser::RunAllWith(const QString& attribute) {
    QStringList acts;
    Tree().Walk(Tree().Root(), [&](int element) {
        if (Tree().HasAttribute(element, attribute))
            acts += Tree().Attribute(element, attribute);
        return true;
    });
    for (const QString& act : acts)
        RunStandIns(act);
}

void SimBrowser::RunScript(const QString& address) {
    const QString script = QUrl::fromPercentEncoding(address.toUtf8());
    scripts += script;
    if (!m_document)
        return;
    QStringList acts;
    Tree().Walk(Tree().Root(), [&](int element) {
        const QString part = Tree().Attribute(element, u"data-on-script");
        if (!part.isEmpty() && script.contains(part))
            acts += Tree().Attribute(element, u"data-do");
        return true;
    });
    for (const QString& act : acts)
        RunStandIns(act);
}

void SimBrowser::RunStandIns(const QString& text) {
    const StandIns parsed = ParseStandIns(text);
    if (!parsed.problem.isEmpty())
        m_web.problems += m_location + u": "_s + parsed.problem;
    const std::shared_ptr<SimDocument> document = m_document;
    for (const StandIn& act : parsed.acts) {
        if (act.afterMs > 0)
            PostLater(act.afterMs, [this, act, document] {
                if (document == m_document)
                    CarryOut(act);
            });
        else if (document == m_document)
            CarryOut(act);
    }
}

void SimBrowser::CarryOut(const StandIn& act) {
    Touched();
    if (act.verb == StandIn::Verb::Goto)
        return FollowAddress(ResolveAddress(m_document->BaseURL(), act.target), {});
    SimTree& tree = Tree();
    const int node = tree.FindById(act.target);
    if (node == 0) {
        m_web.problems += m_location + u": no element #"_s + act.target;
        return;
    }
    switch (act.verb) {
    case StandIn::Verb::Goto:
        break;
    case StandIn::Verb::Show:
        tree.RemoveAttribute(node, u"hidden");
        if (StyleValue(tree.Attribute(node, u"style"), u"display") == u"none")
            tree.SetAttribute(node, u"style"_s, {});
        if (tree.Style(node, u"display"_s) == u"none")
            tree.SetAttribute(node, u"style"_s, u"display: initial;"_s);
        break;
    case StandIn::Verb::Hide:
        tree.SetAttribute(node, u"style"_s, u"display: none;"_s);
        break;
    case StandIn::Verb::Set:
        if (act.name == u"value")
            SetValueOf(tree, node, act.argument);
        else if (act.name == u"innertext")
            m_document->SetInnerText(node, act.argument);
        else if (act.name == u"innerhtml")
            tree.SetInnerHTML(node, act.argument);
        else
            tree.SetAttribute(node, act.name, act.argument);
        break;
    case StandIn::Verb::Remove:
        tree.Remove(node);
        break;
    case StandIn::Verb::Append:
        tree.AppendHTML(node, act.argument);
        break;
    case StandIn::Verb::Submit:
        m_document->Submit(node);
        break;
    case StandIn::Verb::Click:
        m_document->Click(node);
        break;
    }
}

} // namespace qlm
