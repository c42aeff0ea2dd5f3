// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <memory>
#include <stdexcept>
#include <vector>

namespace qlm {

// A use of an element or document that is gone, or an engine that does not answer. Its text is "Automation
// error" unless there is a better one; the steps' error traps expect it.
class BrowserError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    BrowserError() : std::runtime_error("Automation error") {}
};

// Properties of an element that can be read. Each reads as empty text where the element has none.
enum class ElementText {
    InnerText, // of an input or a text area: its value
    InnerHTML,
    OuterHTML,
    Id,
    Name,
    Value,
    Href,     // resolved, as the browser shows it
    HostName, // of a link: the host of href without port
    NameProp, // of an image: the file name of its source
    Src,      // resolved
    Alt,
    Title,
    ClassName,
    TagName, // lower case
    Type,    // lower case
    Text,    // of a script: its source
    // Of a form's field or button: where the form would be sent, with that button if it is one, resolved;
    // empty for what belongs to no form.
    SentTo
};

// Collections of a document, each in document order.
enum class ElementSet {
    Links,   // a and area elements that have an href
    Images,  // img
    Scripts, // script
    ByTag,   // argument: tag name, any case
    ByName,  // argument: the name attribute, exact
    ById,    // argument: an ID, exact; one element at most
    Named    // argument: a name, exact: those of that name, then the one with that ID unless it is among them
};

// Is there an element in a collection whose property, in lower case, is or holds a text?
struct Question {
    enum class Match { Contains, Equals, EqualsTrimmed };

    ElementSet set;
    QString argument;
    ElementText which;
    Match match;
    QString wanted; // lower case

    bool operator==(const Question&) const = default;
    bool FitsText(const QString& text) const;
};

// One property of all elements of a collection, or of their ancestors so many levels up.
struct Reading {
    ElementSet set;
    QString argument;
    ElementText which;
    int level = 0;

    bool operator==(const Reading&) const = default;
};

// Something that is done to all elements of a collection as they are then, without a look at them before.
// Where there is none, nothing is done.
struct Writing {
    enum class Kind {
        Value,
        InnerText,
        FrameMarkup, // the markup of the body in the first of them that is a frame with one
        PressInside  // the first element inside of each is clicked
    };

    ElementSet set;
    QString argument;
    Kind kind;
    QString text = {};
};

// What somebody is about to ask of a page in this turn besides the body's text and markup.
struct Foresight {
    std::vector<Question> questions;
    std::vector<Reading> readings;
    // Parents, ids and markup of single elements.
    bool tree = false;
};

// One loaded document as a platform keeps it. node numbers are the platform's own; 0 is no node. Every call
// throws BrowserError when the document is no longer the present one of its control.
class DocumentBackend {
public:
    virtual ~DocumentBackend() = default;

    // Changes no answer; a platform on which each question costs fetches what was foreseen together.
    virtual void Foresee(const Foresight&) {}
    // The one call that never throws: false once the control shows another document.
    virtual bool IsPresent() const = 0;
    // A hint: these nodes are about to be read together, each of them in the same way, within this turn.
    virtual void Expect(const std::vector<int>&) {}

    virtual QString Address() = 0; // where it came from, as the browser shows it
    virtual int Body() = 0;        // 0 while there is none
    virtual bool HasLinks() = 0;   // the links collection exists, empty or not
    virtual QString
    BodyText(ElementText which) = 0; // InnerText, InnerHTML or OuterHTML of the body, cached a turn
    virtual std::vector<int> Collect(ElementSet set, const QString& argument) = 0;
    virtual int ById(const QString& id) = 0;
    virtual bool Any(const Question& question);
    virtual int ActiveElement() = 0;

    virtual QString Read(int node, ElementText which) = 0;
    virtual QString Attribute(int node, const QString& name) = 0;
    virtual bool HasAttribute(int node, const QString& name) = 0;
    virtual int Parent(int node) = 0;
    virtual std::vector<int> Descendants(int node, const QString& tag) = 0;
    // The document in a frame element; nothing where the page has no way to it.
    virtual std::shared_ptr<DocumentBackend> FrameDocument(int node) = 0;

    // One after the other.
    virtual void Write(const std::vector<Writing>& writings);
    virtual void SetInnerText(int node, const QString& text) = 0;
    virtual void SetInnerHTML(int node, const QString& html) = 0;
    virtual void SetValue(int node, const QString& value) = 0;
    virtual void SetAttribute(int node, const QString& name, const QString& value) = 0;
    virtual void SetSelected(int option, bool isSelected) = 0;
    virtual void Click(int node) = 0;
    virtual void Submit(int node) = 0;
    virtual void Focus(int node) = 0;
    virtual void FireChange(int node) = 0;
    virtual void ScrollIntoView(int node) = 0;
    virtual void ScrollToEnd() = 0;

private:
    // True when the writing is done with.
    bool WriteTo(int node, const Writing& writing);
};

class Document;

// A node of one document: a small value, null when nothing was found. Reading a property of a null element
// gives empty text (a missing ancestor reads as empty text); doing something with one throws BrowserError.
class Element {
public:
    Element() = default;
    Element(std::shared_ptr<DocumentBackend> document, int node)
        : m_document(std::move(document)), m_node(node) {}

    bool IsNull() const { return !m_document || m_node == 0; }
    // The same number means the same node of the same document; 0 is none.
    int Node() const { return IsNull() ? 0 : m_node; }
    explicit operator bool() const { return !IsNull(); }

    QString Read(ElementText which) const { return IsNull() ? QString() : m_document->Read(m_node, which); }
    QString InnerText() const { return Read(ElementText::InnerText); }
    QString InnerHTML() const { return Read(ElementText::InnerHTML); }
    QString OuterHTML() const { return Read(ElementText::OuterHTML); }
    QString Id() const { return Read(ElementText::Id); }
    QString Name() const { return Read(ElementText::Name); }
    QString Value() const { return Read(ElementText::Value); }
    QString Href() const { return Read(ElementText::Href); }
    QString TagName() const { return Read(ElementText::TagName); }
    // The pseudo attributes "innertext", "innerhtml", "outerhtml" and "class" read the property, in any
    // letter case. "checked" of a box, "selected" of an option and "disabled" tell how it is now: the word
    // itself while it is so, otherwise empty. What stands in a disabled fieldset is disabled too.
    QString GetAttribute(const QString& name) const {
        return IsNull() ? QString() : m_document->Attribute(m_node, name);
    }
    bool HasAttribute(const QString& name) const {
        return !IsNull() && m_document->HasAttribute(m_node, name);
    }
    Element ParentElement() const {
        return IsNull() ? Element() : Element(m_document, m_document->Parent(m_node));
    }
    // Ancestor(1) is the parent; null where the tree ends first.
    Element Ancestor(int n) const;
    std::vector<Element> Tags(const QString& tag) const;
    // Of a frame: the document in it, an empty one until its page has come. A null document where the element
    // is no frame, or where a page of another origin stands in it.
    Document FrameDocument() const;

    void SetInnerText(const QString& text) const { Need().SetInnerText(m_node, text); }
    void SetInnerHTML(const QString& html) const { Need().SetInnerHTML(m_node, html); }
    void SetValue(const QString& value) const { Need().SetValue(m_node, value); }
    void SetAttribute(const QString& name, const QString& value) const {
        Need().SetAttribute(m_node, name, value);
    }
    // Of an option: chooses it, or takes the choice away. A list of one choice has never two; it falls back
    // to its first one when its only choice is taken away, if it shows no more than one. The page hears
    // nothing (see FireChange).
    void SetSelected(bool isSelected) const { Need().SetSelected(m_node, isSelected); }
    // On any element, visible or not. A disabled one does nothing.
    void Click() const { Need().Click(m_node); }
    void Submit() const { Need().Submit(m_node); }
    // The page hears of it, wherever the desktop's focus is.
    void Focus() const { Need().Focus(m_node); }
    // The page hears what it hears when a user has changed the element: that there was input, and "onchange".
    void FireChange() const { Need().FireChange(m_node); }
    void ScrollIntoView() const { Need().ScrollIntoView(m_node); }

private:
    DocumentBackend& Need() const {
        if (IsNull())
            throw BrowserError();
        return *m_document;
    }

    std::shared_ptr<DocumentBackend> m_document;
    int m_node = 0;
};

// A loaded document: a small value, null when the control has none. Reading from one that has been replaced
// throws BrowserError.
class Document {
public:
    Document() = default;
    explicit Document(std::shared_ptr<DocumentBackend> backend) : m_backend(std::move(backend)) {}

    bool IsNull() const { return !m_backend; }
    explicit operator bool() const { return !IsNull(); }

    void Foresee(const Foresight& foresight) const { Need().Foresee(foresight); }
    bool Any(const Question& question) const { return Need().Any(question); }
    Element Body() const { return IsNull() ? Element() : Element(m_backend, m_backend->Body()); }
    bool IsPresent() const { return m_backend && m_backend->IsPresent(); }
    // Of the very document whose elements are read and written, whatever has come meanwhile.
    QString Address() const { return Need().Address(); }
    // A hint: these elements are about to be read together, each of them in the same way, within this turn.
    void Expect(const std::vector<Element>& elements) const {
        std::vector<int> nodes;
        nodes.reserve(elements.size());
        for (const Element& element : elements)
            nodes.push_back(element.Node());
        Need().Expect(nodes);
    }
    bool HasLinks() const { return m_backend && m_backend->HasLinks(); }
    QString BodyText() const { return Need().BodyText(ElementText::InnerText); }
    QString BodyHTML() const { return Need().BodyText(ElementText::InnerHTML); }
    QString BodyOuterHTML() const { return Need().BodyText(ElementText::OuterHTML); }

    std::vector<Element> Links() const { return Wrap(Need().Collect(ElementSet::Links, {})); }
    std::vector<Element> Images() const { return Wrap(Need().Collect(ElementSet::Images, {})); }
    std::vector<Element> Scripts() const { return Wrap(Need().Collect(ElementSet::Scripts, {})); }
    std::vector<Element> GetElementsByTagName(const QString& tag) const {
        return Wrap(Need().Collect(ElementSet::ByTag, tag));
    }
    std::vector<Element> GetElementsByName(const QString& name) const {
        return Wrap(Need().Collect(ElementSet::ByName, name));
    }
    // The document in the frame of that name, or else of that id; see Element::FrameDocument().
    Document FrameDocument(const QString& name) const;
    Element GetElementById(const QString& id) const { return Element(m_backend, Need().ById(id)); }
    Element ActiveElement() const { return Element(m_backend, Need().ActiveElement()); }
    void Write(const std::vector<Writing>& writings) const { Need().Write(writings); }
    // Scrolls the window to the body's full height.
    void ScrollToEnd() const { Need().ScrollToEnd(); }

private:
    DocumentBackend& Need() const {
        if (!m_backend)
            throw BrowserError();
        return *m_backend;
    }
    std::vector<Element> Wrap(const std::vector<int>& nodes) const {
        std::vector<Element> elements;
        elements.reserve(nodes.size());
        for (int node : nodes)
            elements.emplace_back(m_backend, node);
        return elements;
    }

    std::shared_ptr<DocumentBackend> m_backend;
};

inline bool Question::FitsText(const QString& text) const {
    const QString lower = text.toLower();
    switch (match) {
    case Match::Contains:
        return lower.contains(wanted);
    case Match::Equals:
        return lower == wanted;
    case Match::EqualsTrimmed:
        return lower.trimmed() == wanted;
    }
    return false;
}

inline bool DocumentBackend::Any(const Question& question) {
    for (const int node : Collect(question.set, question.argument))
        if (question.FitsText(Read(node, question.which)))
            return true;
    return false;
}

inline void DocumentBackend::Write(const std::vector<Writing>& writings) {
    for (const Writing& writing : writings)
        for (const int node : Collect(writing.set, writing.argument))
            if (WriteTo(node, writing))
                break;
}

inline bool DocumentBackend::WriteTo(int node, const Writing& writing) {
    using enum Writing::Kind;
    if (writing.kind == Value)
        SetValue(node, writing.text);
    if (writing.kind == InnerText)
        SetInnerText(node, writing.text);
    if (writing.kind == PressInside)
        if (const std::vector<int> inside = Descendants(node, QStringLiteral("*")); !inside.empty())
            Click(inside.front());
    if (writing.kind != FrameMarkup)
        return false;
    const std::shared_ptr<DocumentBackend> frame = FrameDocument(node);
    const int body = frame ? frame->Body() : 0;
    if (body)
        frame->SetInnerHTML(body, writing.text);
    return body != 0;
}

inline Element Element::Ancestor(int n) const {
    Element ancestor = *this;
    for (int i = 0; i < n && ancestor; ++i)
        ancestor = ancestor.ParentElement();
    return ancestor;
}

inline Document Element::FrameDocument() const {
    return IsNull() ? Document() : Document(m_document->FrameDocument(m_node));
}

inline Document Document::FrameDocument(const QString& name) const {
    for (const Element& element : GetElementsByName(name))
        if (const Document frame = element.FrameDocument())
            return frame;
    return GetElementById(name).FrameDocument();
}

inline std::vector<Element> Element::Tags(const QString& tag) const {
    std::vector<Element> elements;
    for (int node : Need().Descendants(m_node, tag))
        elements.emplace_back(m_document, node);
    return elements;
}

} // namespace qlm
