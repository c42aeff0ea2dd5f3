// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "core/BrowserSounds.h"
#include "core/Registry.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using BrowserSoundsTest = SimulatedProgram;

// The click belongs to the whole desktop: it must not stay silent because the power went.
TEST_F(BrowserSoundsTest, SilenceAndTheRestoredSoundAreMadeDurable) {
    modRegistry(world.settings)
        .WriteString(modRegistry::Root::CurrentUser, u"AppEvents\\Schemes\\Apps\\Explorer\\Navigating"_s,
                     u".Current"_s, u"click.wav"_s);
    const int before = world.settings.syncs;
    app->commands.Run(u"mnuDisableBrowserSounds_Click"_s);
    EXPECT_GT(world.settings.syncs, before);
    const int silenced = world.settings.syncs;
    app->browserSounds->Restore();
    EXPECT_GT(world.settings.syncs, silenced);
}

} // namespace
} // namespace qlm
