// SPDX-License-Identifier: MIT
#pragma once

#include "platform/qt/PageCache.h"
#include "platform/qt/PageCalls.h"

namespace qlm {

// The control, as far as one of its documents needs it.
class DocumentOwner {
public:
    virtual ~DocumentOwner() = default;
    virtual bool IsPresent(const DocumentBackend* document) const = 0;
    // A document that was never announced answered in this one's place.
    virtual void OnOtherDocument(const QString& document) = 0;
    // The address as the document itself gives it.
    virtual void OnAddress(const QString& url) = 0;
};

// The bridge's name of a collection.
QString NameOf(ElementSet set);

// A document in the engine. The first look in a turn brings the body's text and markup in one call, and the
// answers to the questions that were foreseen; what else was foreseen comes in a second call, as soon as any
// of it is asked for. Reads of single nodes bring their neighbours along. All of it is kept until the turn
// ends, and what follows from the tree alone until the tree changes.
class PageDocument final : public DocumentBackend, public std::enable_shared_from_this<PageDocument> {
public:
    PageDocument(QtPump& pump, PageCalls& calls, DocumentOwner& owner, QString id);

    const QString& Id() const { return m_id; }
    // What the bridge answers; throws where the document is gone or silent.
    QVariant Call(const QString& name, const QJsonArray& arguments);
    // Something that may change the page, which ends the turn.
    void Act(const QString& name, const QJsonArray& arguments);

    void Foresee(const Foresight& foresight) override;
    bool IsPresent() const override { return m_owner.IsPresent(this); }
    void Expect(const std::vector<int>& nodes) override;
    QString Address() override;
    int Body() override;
    bool HasLinks() override;
    QString BodyText(ElementText which) override;
    std::vector<int> Collect(ElementSet set, const QString& argument) override;
    int ById(const QString& id) override;
    bool Any(const Question& question) override;
    int ActiveElement() override;

    QString Read(int node, ElementText which) override;
    QString Attribute(int node, const QString& name) override;
    bool HasAttribute(int node, const QString& name) override;
    int Parent(int node) override;
    std::vector<int> Descendants(int node, const QString& tag) override;
    std::shared_ptr<DocumentBackend> FrameDocument(int node) override;

    void Write(const std::vector<Writing>& writings) override;
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
    PageCache& Cache();
    void Check() const;
    // Fetches the turn's look; false when the page does not answer or is just being replaced.
    bool Look();
    const PageLook& NeedLook();
    bool IsFromHere(const PageCalls::Answer& answer);
    void ReadTogether(const std::vector<int>& nodes, ElementText which);
    void FetchForeseen();
    void Fetch(const Foresight& wanted);
    // The tree with its places, fetched when that hasn't been done; nothing when it can't be had.
    PageTree* Places();
    bool IsTreePresent();
    std::optional<QString> FromOutline(int node, ElementText which);
    void ExpectParents(const PageTree& tree, int node, int parent);

    QtPump& m_pump;
    PageCalls& m_calls;
    DocumentOwner& m_owner;
    QString m_id;
    PageCache m_cache;
};

} // namespace qlm
