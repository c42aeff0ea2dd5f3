// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <functional>

namespace qlm {

// The document of about:blank as the program sees it: a body with nothing in it. It stands at once, whatever
// the engine still shows, and asks the engine nothing. isPresent tells whether the control still shows it.
//
// Markup that is put into its body makes it a page like any other: write shows that one in its place.
class BlankDocument final : public DocumentBackend {
public:
    BlankDocument(std::function<bool(const DocumentBackend*)> isPresent,
                  std::function<void(const QString&)> write)
        : m_isPresent(std::move(isPresent)), m_write(std::move(write)) {}

    bool IsPresent() const override { return m_isPresent(this); }
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
    void Check() const;

    std::function<bool(const DocumentBackend*)> m_isPresent;
    std::function<void(const QString&)> m_write;
};

} // namespace qlm
