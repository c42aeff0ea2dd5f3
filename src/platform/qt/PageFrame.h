// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

namespace qlm {

class PageDocument;

// The document in a frame of a page in the engine. Its nodes are numbered with the page's, which answers for
// them; what is asked of the document as a whole is asked each time.
class PageFrame final : public DocumentBackend {
public:
    // document is its number among the page's nodes.
    PageFrame(std::shared_ptr<PageDocument> page, int document);
    ~PageFrame() override;

    bool IsPresent() const override;
    void Expect(const std::vector<int>& nodes) override;
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
    std::shared_ptr<PageDocument> m_page;
    int m_document;
};

} // namespace qlm
