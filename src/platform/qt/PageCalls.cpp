// SPDX-License-Identifier: MIT
#include "platform/qt/PageCalls.h"

#include "platform/qt/BrowserPage.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QTimer>
#include <QWebEngineScript>

#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto ownWorld = QWebEngineScript::ApplicationWorld;

QString CallScript(const QString& document, const QString& name, const QJsonArray& arguments) {
    const QString list = QString::fromUtf8(QJsonDocument(arguments).toJson(QJsonDocument::Compact));
    return u"typeof quillmere==='object'?quillmere.call('"_s + document + u"','"_s + name + u"',"_s + list +
           u"):{missing:true}"_s;
}

} // namespace

// Shared with the engine, which may answer when nobody waits any more.
struct PageCalls::Wait {
    bool isOver = false;
    QVariant value;
    QEventLoop* loop = nullptr;

    void End() {
        isOver = true;
        if (loop)
            loop->quit();
    }
};

PageCalls::PageCalls(QtPump& pump, std::function<QString()> bridgeSource)
    : m_pump(pump),
      m_bridgeSource(std::move(bridgeSource)),
      m_self(new PageCalls*(this), [](PageCalls** self) { delete self; }) {}

void PageCalls::SetPage(QWebEnginePage* page) {
    Lose();
    m_page = page;
    m_silent = false;
    m_late.clear();
}

void PageCalls::Lose() {
    ++m_era;
    if (m_wait)
        m_wait->End();
}

void PageCalls::BeginDocument() {
    m_late.clear();
    if (!m_silent)
        return;
    ++m_era;
    m_silent = false;
}

std::optional<PageCalls::Answer> PageCalls::Call(Kind kind, const QString& document, const QString& name,
                                                 const QJsonArray& arguments) {
    if (!CanCall())
        return std::nullopt;
    const QString script = CallScript(document, name, arguments);
    if (kind == Kind::Act)
        m_late.clear();
    QVariantMap answer = (m_late.contains(script) ? m_late.take(script) : Run(script, kind)).toMap();
    if (answer.contains(u"missing"_s)) {
        Run(m_bridgeSource(), Kind::Act);
        answer = Run(script, kind).toMap();
    }
    if (!answer.contains(u"ok"_s))
        return std::nullopt;
    return Answer{answer.value(u"document"_s).toString(), answer.value(u"ok"_s).toBool(),
                  answer.value(u"value"_s)};
}

void PageCalls::InstallBridge() {
    ++m_count;
    if (m_page)
        m_page->runJavaScript(m_bridgeSource(), ownWorld);
}

void PageCalls::Post(const QString& script) {
    ++m_count;
    m_late.clear();
    if (m_page)
        m_page->runJavaScript(script);
}

void PageCalls::PostCall(const QString& document, const QString& name, const QJsonArray& arguments) {
    ++m_count;
    if (m_page)
        m_page->runJavaScript(CallScript(document, name, arguments), ownWorld);
}

QVariant PageCalls::Run(const QString& script, Kind kind) {
    if (BrowserPage::IsInsideRequest())
        throw std::logic_error("the page was called while it waits for a navigation's answer");
    if (!CanCall())
        return {};
    ++m_count;
    const QtPump::Hold hold(m_pump);
    const auto wait = std::make_shared<Wait>();
    const std::weak_ptr<PageCalls*> self = m_self;
    const QString question = kind == Kind::Question ? script : QString();
    m_page->runJavaScript(script, ownWorld, [wait, self, era = m_era, question](const QVariant& value) {
        if (wait->isOver) {
            if (const auto calls = self.lock())
                (*calls)->OnLateAnswer(era, question, value);
            return;
        }
        wait->value = value;
        wait->End();
    });

    const quint64 era = m_era;
    bool isLate = false;
    if (!wait->isOver) {
        QEventLoop loop;
        QTimer deadline;
        deadline.setSingleShot(true);
        QObject::connect(&deadline, &QTimer::timeout, &loop, [&] {
            isLate = true;
            loop.quit();
        });
        deadline.start(m_answerLimitMs);
        wait->loop = &loop;
        const auto outer = std::exchange(m_wait, wait);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        m_wait = outer;
        wait->loop = nullptr;
    }
    isLate = isLate && !wait->isOver;
    wait->isOver = true;
    if (isLate && era == m_era) {
        m_silent = true;
        if (onSilence)
            onSilence();
    }
    return wait->value;
}

void PageCalls::OnLateAnswer(quint64 era, const QString& script, const QVariant& value) {
    if (era != m_era || !m_silent)
        return;
    m_silent = false;
    if (!script.isEmpty())
        m_late.insert(script, value);
    if (onAnswer)
        onAnswer();
}

} // namespace qlm
