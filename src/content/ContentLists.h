// SPDX-License-Identifier: MIT
#pragma once

#include "content/ContentList.h"
#include "content/MessageFile.h"

namespace qlm {

class App;

// The four lists of prepared texts that campaigns walk: plain text files, one entry a line, in the scope of
// the account. Read from the file each time; a missing file is created and reads as an empty list.
class ContentLists {
public:
    explicit ContentLists(App& app) : m_app(app), m_messageFile(app) {}

    // The list of the account in use.
    ContentList Of(ContentKind kind);
    QString PathOf(ContentKind kind);
    // The section of the settings store that its screen's options stand in.
    QString SectionOf(ContentKind kind);
    // Is there an entry: a line with the needle at its second character or after? An empty needle takes the
    // kind's own word. Of messages only the first line is looked at, for their own word always.
    bool ListHasEntries(ContentKind kind, const QString& needle = {});
    // How many lines are entries in that sense.
    qint32 CountListEntries(ContentKind kind, const QString& needle = {});
    // GetNextMessage, GetNextComment, GetNextBulletin, GetNextStatus: the line of that number, counted from
    // 1, with its escapes undone; empty past the end.
    QString GetNext(ContentKind kind, int index);
    // Whether a campaign draws its entries by chance instead of in order.
    bool Randomizes(ContentKind kind);

    // FillMainMessagesList and so on: the rows of the campaign tab's lstSendList.
    void FillMainList(ContentKind kind);
    void FillMainLists();

private:
    App& m_app;
    MessageFile m_messageFile;
};

} // namespace qlm
