// SPDX-License-Identifier: MIT
#pragma once

#include "guided/WindowDriver.h"

namespace qlm {

class PracticeControls;

// Shows the program at its work without anybody at the mouse: presses the real buttons of the real window on
// the practice site, prints each step as it happens, keeps pictures, and compares what the site's journal
// says with what the program's log says.
//
// It plays the person, too, when the site asks for a CAPTCHA: it has set the word itself, by the site's
// controls, and types it key by key. Nothing reads the image.
class GuidedRun : public WindowDriver {
public:
    GuidedRun(App& app, PracticeControls& site, const QString& outFolder);

protected:
    // Prints the summary and keeps it as a file.
    void OnEnd(const QString& problem) override;

private:
    void PlanLogin();
    void PlanGathering();
    void PlanFilter();
    void PlanLimit();
    void PlanSending();
    void PlanCaptcha();
    void PlanReport();
    void KeepPicture(const char* form, const QString& fileName);
    QStringList LogLines() const;
    QString Summarise();

    PracticeControls& m_site;
    const QString m_outFolder;
    QStringList m_summary;
    bool m_pictureOfGathering = false;
    QString m_end; // how the run of requests ended
};

} // namespace qlm
