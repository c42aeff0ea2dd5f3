// SPDX-License-Identifier: MIT
#include "platform/qt/BlankDocument.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int bodyNode = 1;
constexpr int rootNode = 2;

} // namespace

void BlankDocument::Check() const {
    if (!m_isPresent(this))
        throw BrowserError();
}

QString BlankDocument::Address() {
    Check();
    return u"about:blank"_s;
}

int BlankDocument::Body() {
    Check();
    return bodyNode;
}

bool BlankDocument::HasLinks() {
    Check();
    return true;
}

QString BlankDocument::BodyText(ElementText which) {
    return Read(bodyNode, which);
}

std::vector<int> BlankDocument::Collect(ElementSet set, const QString& argument) {
    Check();
    if (set != ElementSet::ByTag)
        return {};
    if (argument.compare(u"body"_s, Qt::CaseInsensitive) == 0)
        return {bodyNode};
    if (argument.compare(u"html"_s, Qt::CaseInsensitive) == 0)
        return {rootNode};
    return {};
}

int BlankDocument::ById(const QString&) {
    Check();
    return 0;
}

int BlankDocument::ActiveElement() {
    Check();
    return bodyNode;
}

QString BlankDocument::Read(int node, ElementText which) {
    Check();
    if (which == ElementText::TagName)
        return node == bodyNode ? u"body"_s : u"html"_s;
    if (which == ElementText::OuterHTML)
        return node == bodyNode ? u"<body></body>"_s : u"<html><head></head><body></body></html>"_s;
    if (which == ElementText::InnerHTML && node == rootNode)
        return u"<head></head><body></body>"_s;
    return {};
}

QString BlankDocument::Attribute(int, const QString&) {
    Check();
    return {};
}

bool BlankDocument::HasAttribute(int, const QString&) {
    Check();
    return false;
}

int BlankDocument::Parent(int node) {
    Check();
    return node == bodyNode ? rootNode : 0;
}

std::vector<int> BlankDocument::Descendants(int, const QString&) {
    Check();
    return {};
}

std::shared_ptr<DocumentBackend> BlankDocument::FrameDocument(int) {
    Check();
    return nullptr;
}

void BlankDocument::SetInnerText(int, const QString&) {
    throw BrowserError();
}

void BlankDocument::SetInnerHTML(int node, const QString& html) {
    Check();
    if (node != bodyNode)
        throw BrowserError();
    // This document is gone after it, and its function with it.
    const auto write = m_write;
    write(html);
}

void BlankDocument::SetValue(int, const QString&) {
    throw BrowserError();
}

void BlankDocument::SetAttribute(int, const QString&, const QString&) {
    throw BrowserError();
}

void BlankDocument::SetSelected(int, bool) {
    throw BrowserError();
}

void BlankDocument::Click(int) {
    Check();
}

void BlankDocument::Submit(int) {
    throw BrowserError();
}

void BlankDocument::Focus(int) {
    Check();
}

void BlankDocument::FireChange(int) {
    Check();
}

void BlankDocument::ScrollIntoView(int) {
    Check();
}

void BlankDocument::ScrollToEnd() {
    Check();
}

} // namespace qlm
