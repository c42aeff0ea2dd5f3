// SPDX-License-Identifier: MIT
#include "steps/RunReport.h"

#include "browser/PageClassifier.h"

#include <utility>

namespace qlm {

ReportStream& RunReport::StreamOf(const ReportKind& kind) {
    for (const auto& stream : m_streams)
        if (qstrcmp(stream->Kind().file, kind.file) == 0)
            return *stream;
    m_streams.push_back(std::make_unique<ReportStream>(m_app, kind));
    m_streams.back()->onChange = [this] {
        if (onChange)
            onChange();
    };
    return *m_streams.back();
}

void RunReport::BeginRun(const ReportKind& kind, const QString& about) {
    if (kind.file[0] == 0)
        return;
    for (const auto& stream : m_streams)
        if (!stream->IsResting() || qstrcmp(stream->Kind().file, kind.file) == 0)
            stream->End(Ending::Other);
    m_atWork = &StreamOf(kind);
    m_atWork->Begin(about);
}

void RunReport::Reopen(const ReportKind& kind) {
    m_atWork = &StreamOf(kind);
    m_atWork->Reopen();
}

void RunReport::EndRun(StopReason reason) {
    End(RowOf(reason).ending);
    if (!RowOf(reason).isOwnEnd)
        for (const auto& stream : m_streams)
            stream->End(RowOf(reason).ending);
}

void RunReport::End(Ending ending) {
    if (ReportStream* run = SetAside())
        run->End(ending);
}

ReportStream* RunReport::SetAside() {
    return std::exchange(m_atWork, nullptr);
}

void RunReport::Rest() {
    if (ReportStream* run = SetAside())
        run->Rest(true);
}

void RunReport::TakeUp(ReportStream* run) {
    m_atWork = run && run->IsRunning() ? run : nullptr;
    if (m_atWork)
        m_atWork->Rest(false);
}

void RunReport::PassOver(const QString& id, const QString& why) {
    if (m_atWork)
        m_atWork->PassOver(id, why);
}

void RunReport::Open(const QString& id) {
    if (m_atWork)
        m_atWork->Open(id);
}

void RunReport::Remark(const QString& why, int pageClass) {
    if (m_atWork)
        m_atWork->Remark(why, pageClass);
}

void RunReport::RemarkPage(int pageClass) {
    Remark(RefusalText(pageClass), pageClass);
}

void RunReport::Confirm() {
    if (m_atWork)
        m_atWork->Confirm();
}

void RunReport::MarkSent(bool isLogged) {
    if (m_atWork)
        m_atWork->MarkSent(isLogged);
}

void RunReport::Close(ReportResult result, const QString& why) {
    if (m_atWork)
        m_atWork->Close(result, why);
}

void RunReport::CloseForNow(const QString& id, const QString& why) {
    if (m_atWork)
        m_atWork->CloseForNow(id, why);
}

void RunReport::Settle(ReportResult result, const QString& why) {
    if (m_atWork)
        m_atWork->Settle(result, why);
}

void RunReport::Flush() {
    if (m_atWork)
        m_atWork->Flush();
}

} // namespace qlm
