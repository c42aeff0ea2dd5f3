// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

namespace qlm {

class App;

// Where a page has a mark. Letter case counts where the name says so alone; {Role}s in addresses are
// replaced.
enum class In {
    Text,         // the body's text holds it
    ExactText,    // in this letter case
    NoText,       // the body's text lacks it
    Markup,       // the body's markup holds it
    Link,         // the address of a link holds it
    Element,      // an element has that ID
    Address,      // the page's address holds it
    AddressStart, // begins with it, whatever the schemes
    AddressEnd,   // ends with it
    ExactAddress, // is it, in this letter case, whatever the schemes
};

struct PageMark {
    In where;
    const char16_t* text;
};
// A page of that kind has every mark of one of the groups; without groups any page is of that kind.
using PageMarks = std::vector<PageMark>;
using PageKinds = std::vector<PageMarks>;

// The kind of page whose text says so; all of it.
inline PageKinds Says(const char16_t* text) {
    return {{{In::Text, text}}};
}
inline PageKinds Says(const char16_t* text, const char16_t* andToo) {
    return {{{In::Text, text}, {In::Text, andToo}}};
}
// The kind of page with that in its address.
inline PageKinds At(const char16_t* address) {
    return {{{In::Address, address}}};
}

// A page in the words that all tables of page rules use.
class PageView {
public:
    virtual ~PageView() = default;

    virtual QString Address() const = 0;
    virtual QString Text() const = 0;   // of the body
    virtual QString Markup() const = 0; // of the body
    // Replaces the {Role}s; "{SingularGroupHost}" is the groups' host with its first "groups" read as
    // "group".
    QString Expand(const QString& text) const;

    bool Has(const PageMark& mark) const;
    bool HasAll(const PageMarks& marks) const;
    bool IsOneOf(const PageKinds& kinds) const;
    bool Shows(const char16_t* text) const { return Has({In::Text, text}); }
    bool At(const char16_t* address) const { return Has({In::Address, address}); }

protected:
    virtual QString WithRoles(const QString& text) const = 0;
    virtual QString Lowered(const QString& text) const { return text.toLower(); }
    virtual bool HasElement(const QString& id) const = 0;
    virtual QStringList LinkAddresses() const = 0;

private:
    bool HasLinkTo(const QString& part) const;
};

// The page that stands in WebBrowser1, for one stage of a check: the first look at its text or markup waits
// for a document, and nobody pumps between that one and the last.
class ShownPage : public PageView {
public:
    explicit ShownPage(App& app) : m_app(app) {}

    QString Address() const override;
    QString Text() const override;
    QString Markup() const override;
    bool IsComplete() const;

protected:
    QString WithRoles(const QString& text) const override;
    QString Lowered(const QString& text) const override;
    bool HasElement(const QString& id) const override;
    QStringList LinkAddresses() const override;

private:
    Document Awaited() const;

    App& m_app;
    mutable bool m_hasWaited = false;
};

// What was read of a page that may have gone meanwhile.
class KeptPage : public PageView {
public:
    struct Content {
        QString address = {};
        QString text = {};
        QString markup = {};
        QStringList ids = {};
        QStringList links = {};
    };
    using RoleReader = std::function<QString(const QString&)>; // replaces the {Role}s of a text
    explicit KeptPage(
        Content content, RoleReader withRoles = [](const QString& text) { return text; })
        : m_content(std::move(content)), m_withRoles(std::move(withRoles)) {}

    QString Address() const override { return m_content.address; }
    QString Text() const override { return m_content.text; }
    QString Markup() const override { return m_content.markup; }

protected:
    QString WithRoles(const QString& text) const override { return m_withRoles(text); }
    bool HasElement(const QString& id) const override { return m_content.ids.contains(id); }
    QStringList LinkAddresses() const override { return m_content.links; }

private:
    Content m_content;
    RoleReader m_withRoles;
};

} // namespace qlm
