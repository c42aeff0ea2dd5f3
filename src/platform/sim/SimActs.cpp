// SPDX-License-Identifier: MIT
#include "platform/sim/SimAddress.h"
#include "platform/sim/SimBrowser.h"

#include <QUrl>
#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsClickable(const SimNode& node) {
    return node.Is(u"a") || node.Is(u"area") || node.Is(u"input") || node.Is(u"button") || node.Is(u"label");
}

bool IsOwnFrame(const QString& target) {
    return target.isEmpty() || target.compare(u"_self"_s, Qt::CaseInsensitive) == 0;
}

// Frames stand in the page itself, so that what is around one is the top.
bool IsTop(const QString& target) {
    return target.compare(u"_top"_s, Qt::CaseInsensitive) == 0 ||
           target.compare(u"_parent"_s, Qt::CaseInsensitive) == 0;
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

void SimBrowser::ElementClicked(SimDocument& page, int node) {
    SimTree& tree = page.Tree();
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
        ClickControl(page, control);
    RunStandIns(page, acts);
}

void SimBrowser::ClickControl(SimDocument& page, int node) {
    SimTree& tree = page.Tree();
    const SimNode& control = tree.At(node);
    const QString type = TypeOf(tree, node);
    if (control.Is(u"a") || control.Is(u"area")) {
        if (tree.HasAttribute(node, u"href"))
            FollowAddress(page, ResolveAddress(page.BaseURL(), tree.Attribute(node, u"href")),
                          tree.Attribute(node, u"target"));
    } else if (control.Is(u"label")) {
        const std::vector<int> inside = tree.Elements(node, u"input");
        const int named = tree.FindById(tree.Attribute(node, u"for"));
        if (named || !inside.empty())
            ElementClicked(page, named ? named : inside.front());
    } else if (type == u"checkbox" || type == u"radio") {
        Toggle(tree, node);
    } else if ((type == u"submit" || type == u"image") && FormOf(tree, node)) {
        SendForm(page, FormOf(tree, node), node);
    }
}

// What a page or a frame of it wants to load somewhere else than in the page's own place; true when it did.
bool SimBrowser::LoadElsewhere(SimDocument& page, const SimRequest& request, const QString& target) {
    const int frame = IsOwnFrame(target) ? FrameOf(page) : IsTop(target) ? 0 : FrameNamed(target);
    if (frame != 0) {
        LoadFrame(request, frame, false);
        return true;
    }
    if (IsOwnFrame(target) || IsTop(target))
        return false;
    Post([this, url = request.url] {
        const auto ask = events.newWindow2;
        if (!ask || !ask(url))
            windows += url;
    });
    return true;
}

// A link was followed, by whomever.
void SimBrowser::FollowAddress(SimDocument& page, const QString& url, const QString& target) {
    const QString scheme = SchemeOf(url);
    if (scheme == u"javascript" && !IsSealed())
        return RunScript(page, url);
    if (RefusesNavigations() || !(scheme.startsWith(u"http") || scheme == u"about"))
        return;
    Load load;
    load.request.url = url;
    load.request.referrer = m_location;
    if (LoadElsewhere(page, load.request, target))
        return;
    if (IsMoveInPage(url))
        return Start(load);
    NavigationRequest question;
    question.url = url;
    question.targetFrameName = target;
    Ask(load, question);
}

void SimBrowser::FormSubmitted(SimDocument& page, int form) {
    SendForm(page, form, 0);
}

void SimBrowser::SendForm(SimDocument& page, int form, int pressed) {
    SimTree& tree = page.Tree();
    const QString action = page.AddressOfForm(form, pressed);
    if (SchemeOf(action) == u"javascript" && !IsSealed())
        return RunScript(page, action);
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
    question.pageText = page.BodyText(ElementText::InnerText);
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
    if (LoadElsewhere(page, load.request, tree.Attribute(form, u"target")))
        return;
    Tell(question);
    Start(load);
}

void SimBrowser::SendBeside(SimDocument& page, int form) {
    SimRequest request;
    request.method = u"POST"_s;
    request.url = page.AddressOfForm(form, 0);
    request.body = EncodedFields(FieldsOf(page.Tree(), form, 0)).toLatin1();
    request.contentType = u"application/x-www-form-urlencoded"_s;
    request.referrer = m_location;
    request.topLevel = false;
    m_web.Fetch(request);
}

void SimBrowser::ScrolledToEnd(SimDocument& page) {
    RunAllWith(page, u"data-on-scroll"_s);
}

void SimBrowser::ValueWritten(SimDocument& page, int node) {
    RunStandIns(page, page.Tree().Attribute(node, u"data-on-input"));
}

// What stands around the element hears it too.
void SimBrowser::ChangeFired(SimDocument& page, int node) {
    const SimTree& tree = page.Tree();
    QStringList acts;
    for (int hears = node; hears != 0; hears = tree.At(hears).parent)
        acts += tree.Attribute(hears, u"data-on-change");
    for (const QString& act : acts)
        RunStandIns(page, act);
}

void SimBrowser::GotFocus(SimDocument& page, int node) {
    RunStandIns(page, page.Tree().Attribute(node, u"data-on-focus"));
}

void SimBrowser::RunAllWith(SimDocument& page, const QString& attribute) {
    const SimTree& tree = page.Tree();
    QStringList acts;
    tree.Walk(tree.Root(), [&](int element) {
        if (tree.HasAttribute(element, attribute))
            acts += tree.Attribute(element, attribute);
        return true;
    });
    for (const QString& act : acts)
        RunStandIns(page, act);
}

// A script of the page reaches the frames that it may look into.
void SimBrowser::RunScript(SimDocument& page, const QString& address) {
    const QString script = QUrl::fromPercentEncoding(address.toUtf8());
    scripts += script;
    std::vector<std::shared_ptr<SimDocument>> documents{page.shared_from_this()};
    if (&page == m_document.get())
        for (const auto& [element, frame] : m_frames)
            if (frame.reach == Reach::Same)
                documents.push_back(frame.document);
    for (const std::shared_ptr<SimDocument>& document : documents)
        if (document->IsPresent())
            RunScriptIn(*document, script);
}

void SimBrowser::RunScriptIn(SimDocument& page, const QString& script) {
    const SimTree& tree = page.Tree();
    QStringList acts;
    tree.Walk(tree.Root(), [&](int element) {
        const QString part = tree.Attribute(element, u"data-on-script");
        if (!part.isEmpty() && script.contains(part))
            acts += tree.Attribute(element, u"data-do");
        return true;
    });
    for (const QString& act : acts)
        RunStandIns(page, act);
}

void SimBrowser::RunStandIns(SimDocument& page, const QString& text) {
    if (IsSealed())
        return;
    const StandIns parsed = ParseStandIns(text);
    if (!parsed.problem.isEmpty())
        m_web.problems += m_location + u": "_s + parsed.problem;
    const std::shared_ptr<SimDocument> document = page.shared_from_this();
    for (const StandIn& act : parsed.acts) {
        if (act.afterMs > 0)
            PostLater(act.afterMs, [this, act, document] {
                if (document->IsPresent())
                    CarryOut(*document, act);
            });
        else if (document->IsPresent())
            CarryOut(*document, act);
    }
}

void SimBrowser::CarryOut(SimDocument& page, const StandIn& act) {
    Touched();
    if (act.verb == StandIn::Verb::Goto)
        return FollowAddress(page, ResolveAddress(page.BaseURL(), act.target), {});
    SimTree& tree = page.Tree();
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
            page.SetInnerText(node, act.argument);
        else if (act.name == u"innerhtml")
            tree.SetInnerHTML(node, act.argument);
        else if (act.name == u"disabled" && act.argument == u"false")
            tree.RemoveAttribute(node, act.name);
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
        page.Submit(node);
        break;
    case StandIn::Verb::Click:
        page.Click(node);
        break;
    case StandIn::Verb::Send:
        SendBeside(page, node);
        break;
    }
}

} // namespace qlm
