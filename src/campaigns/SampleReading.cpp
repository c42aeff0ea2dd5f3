// SPDX-License-Identifier: MIT
#include "campaigns/SampleReading.h"

#include "campaigns/TargetName.h"
#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString SampleName = u"Anna"_s;

struct ReadingRow {
    QLatin1StringView text;
    QLatin1StringView reads; // the line beside it
};

constexpr ReadingRow Readings[] = {
    {"txtMsgSubject"_L1, "lblMsgSubjectReads"_L1},
    {"txtMsgMessage"_L1, "lblMsgReads"_L1},
    {"txtComment"_L1, "lblComReads"_L1},
    {"txtCommentNonHTML"_L1, "lblComNonHTMLReads"_L1},
    {"txtAcceptMessage"_L1, "lblAccMsgReads"_L1},
    {"txtAcceptComment"_L1, "lblAccComReads"_L1},
    {"txtAcceptCommentNonHTML"_L1, "lblAccComNonHTMLReads"_L1},
};

QString ReadingOf(const QString& text) {
    return text.trimmed().isEmpty() ? QString() : u"Reads: "_s + PutName(text, SampleName).remove(u'\r');
}

} // namespace

void ShowSampleReadings(App& app) {
    app.controls.AddListener([&app](const Control& control, Controls::Change change, int) {
        if (change != Controls::Change::Text)
            return;
        for (const ReadingRow& row : Readings)
            if (control.name == row.text)
                app.controls.SetText(row.reads, ReadingOf(control.text));
    });
}

} // namespace qlm
