// SPDX-License-Identifier: MIT
#include "platform/qt/PageFrame.h"

#include "platform/qt/PageDocument.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

PageFrame::PageFrame(std::shared_ptr<PageDocument> page, int document)
    : m_page(std::move(page)), m_document(document) {}

PageFrame::~PageFrame() = default;

bool PageFrame::IsPresent() const {
    try {
        return m_page->IsPresent() && !m_page->Call(u"address"_s, {m_document}).toString().isEmpty();
    } catch (const BrowserError&) {
        return false;
    }
}

void PageFrame::Expect(const std::vector<int>& nodes) {
    m_page->Expect(nodes);
}

QString PageFrame::Address() {
    return m_page->Call(u"address"_s, {m_document}).toString();
}

int PageFrame::Body() {
    return m_page->Call(u"body"_s, {m_document}).toInt();
}

bool PageFrame::HasLinks() {
    return IsPresent();
}

QString PageFrame::BodyText(ElementText which) {
    const int body = Body();
    return body ? Read(body, which) : QString();
}

std::vector<int> PageFrame::Collect(ElementSet set, const QString& argument) {
    const std::vector<int> nodes =
        UnpackNodes(m_page->Call(u"collect"_s, {NameOf(set), argument, m_document}));
    m_page->Expect(nodes);
    return nodes;
}

int PageFrame::ById(const QString& id) {
    return m_page->Call(u"byId"_s, {id, m_document}).toInt();
}

int PageFrame::ActiveElement() {
    return m_page->Call(u"activeElement"_s, {m_document}).toInt();
}

QString PageFrame::Read(int node, ElementText which) {
    return m_page->Read(node, which);
}

QString PageFrame::Attribute(int node, const QString& name) {
    return m_page->Attribute(node, name);
}

bool PageFrame::HasAttribute(int node, const QString& name) {
    return m_page->HasAttribute(node, name);
}

int PageFrame::Parent(int node) {
    return m_page->Parent(node);
}

std::vector<int> PageFrame::Descendants(int node, const QString& tag) {
    return m_page->Descendants(node, tag);
}

std::shared_ptr<DocumentBackend> PageFrame::FrameDocument(int node) {
    return m_page->FrameDocument(node);
}

void PageFrame::SetInnerText(int node, const QString& text) {
    m_page->SetInnerText(node, text);
}

void PageFrame::SetInnerHTML(int node, const QString& html) {
    m_page->SetInnerHTML(node, html);
}

void PageFrame::SetValue(int node, const QString& value) {
    m_page->SetValue(node, value);
}

void PageFrame::SetAttribute(int node, const QString& name, const QString& value) {
    m_page->SetAttribute(node, name, value);
}

void PageFrame::SetSelected(int option, bool isSelected) {
    m_page->SetSelected(option, isSelected);
}

void PageFrame::Click(int node) {
    m_page->Click(node);
}

void PageFrame::Submit(int node) {
    m_page->Submit(node);
}

void PageFrame::Focus(int node) {
    m_page->Focus(node);
}

void PageFrame::FireChange(int node) {
    m_page->FireChange(node);
}

void PageFrame::ScrollIntoView(int node) {
    m_page->ScrollIntoView(node);
}

void PageFrame::ScrollToEnd() {
    m_page->Act(u"scrollToEnd"_s, {m_document});
}

} // namespace qlm
