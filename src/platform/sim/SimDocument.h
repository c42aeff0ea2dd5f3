// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"
#include "platform/sim/SimTree.h"

#include <QHash>
#include <map>

namespace qlm {

class SimDocument;

// What a simulated document, of a page or of a frame, asks of the browser that shows it.
class SimDocumentHost {
public:
    virtual ~SimDocumentHost() = default;
    virtual void ElementClicked(SimDocument& page, int node) = 0;
    virtual void FormSubmitted(SimDocument& page, int form) = 0;
    virtual void ScrolledToEnd(SimDocument& page) = 0;
    // A value was written to the element, by the program or the user.
    virtual void ValueWritten(SimDocument& page, int node) = 0;
    virtual void ChangeFired(SimDocument& page, int node) = 0;
    virtual void GotFocus(SimDocument& page, int node) = 0;
    virtual std::shared_ptr<SimDocument> DocumentInFrame(SimDocument& page, int node) = 0;
    // Something was written or clicked: the turn is over.
    virtual void Touched() = 0;
};

// One loaded page of a SimBrowser. Texts and collections are kept until the page changes.
class SimDocument : public DocumentBackend, public std::enable_shared_from_this<SimDocument> {
public:
    SimDocument(SimDocumentHost& host, const QString& html, const QString& url);

    // The browser shows another document: from now on every use throws.
    void Retire() { m_host = nullptr; }
    bool IsPresent() const override { return m_host != nullptr; }
    SimTree& Tree() { return m_tree; }
    const QString& URL() const { return m_url; }
    // What relative addresses are relative to.
    const QString& BaseURL();
    QString Title() const;
    // Where the form goes to when that button of its, or none (0), sends it.
    QString AddressOfForm(int form, int pressed);

    QString Address() override;
    int Body() override;
    bool HasLinks() override;
    QString BodyText(ElementText which) override;
    std::vector<int> Collect(ElementSet set, const QString& argument) override;
    int ById(const QString& id) override;
    int ActiveElement() override;
    QString Read(int node, ElementText which) override;
    QString Attribute(int node, const QString& name) override;
    bool HasAttribute(int node, const QString& name) override;
    int Parent(int node) override;
    std::vector<int> Descendants(int node, const QString& tag) override;
    std::shared_ptr<DocumentBackend> FrameDocument(int node) override;
    void SetInnerText(int node, const QString& text) override;
    void SetInnerHTML(int node, const QString& html) override;
    void SetValue(int node, const QString& value) override;
    void SetAttribute(int node, const QString& name, const QString& value) override;
    void SetSelected(int option, bool isSelected) override;
    void Click(int node) override;
    void Submit(int node) override;
    void Focus(int node) override;
    void FireChange(int node) override;
    void ScrollIntoView(int node) override;
    void ScrollToEnd() override;

private:
    SimDocumentHost& Present() const;
    void DropOldCaches();
    QString ReadText(int node) const;
    QString ReadAddress(int node, ElementText which);
    std::vector<int> Gather(ElementSet set, const QString& argument) const;
    std::vector<int> GatherNamed(ElementSet set, const QString& argument) const;

    SimDocumentHost* m_host;
    SimTree m_tree;
    QString m_url;
    int m_focus = 0;

    quint64 m_cachedChanges = 0;
    QString m_baseURL;
    std::map<ElementText, QString> m_bodyTexts;
    std::map<std::pair<ElementSet, QString>, std::vector<int>> m_sets;
    QHash<QString, int> m_ids;
};

} // namespace qlm
