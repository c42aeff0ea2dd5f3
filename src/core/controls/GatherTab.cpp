// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

namespace {
constexpr const char16_t* FullGatherTip =
    u"Please click the 'help' link next to the option for more information on 'Full Gather'";
}

std::vector<ControlRow> GatherTab() {
    return {
        Button("piccmdFrGotoBrowse", u"&Browse")
            .Picture("GOTOBROWSE")
            .Tip(u"Navigate to the MySpace browse page"),
        Button("piccmdFrGotoFriends", u"&Friends")
            .Picture("GOTOFRIENDS")
            .Tip(u"Navigate to the current profile's friends list"),
        Button("piccmdFrGotoComments", u"&Comments")
            .Picture("GOTOCOMMENTS")
            .Tip(u"Navigate to the current profile's comments list"),
        List("lstFriendIDs").Spoken(u"Gathered profile ID's"),
        List("lstAcceptIDs"),
        Label("lblProfilesGathered", u"Profiles Gathered: 0"),
        Option("optScanCurrentPage", "scan", u"Gather ID’s from Current &Page Only")
            .Tip(u"Only gather ID's on the current page")
            .Kept("GatherSettings"),
        Option("optScanFollowing", "scan", u"Gather ID’s from &All Pages")
            .Ticked()
            .Tip(u"Gather from current page and automatically continue to the following pages, if there are "
                 u"any.")
            .Kept("GatherSettings"),
        Option("optScanGoogle", "scan", u"Gather ID’s from Goo&gle Search")
            .Tip(u"Perform a Google search and gather ID's of profiles with the specified words on their "
                 u"profile page")
            .Kept("GatherSettings"),
        Option("optImportClickedProfiles", "scan", u"Gather Clicked P&rofiles")
            .Tip(u"When this is selected, you can add individual ID's to the list by clicking on the links "
                 u"in the browser window")
            .Explains(u"Use this to click on any profile in the browser and add that profile to the list"),
        Option("optFullGather", "gather", u"F&ull Gather").Tip(FullGatherTip).Kept("GatherSettings"),
        Option("optQuickGather", "gather", u"&Quick Gather")
            .Ticked()
            .Tip(FullGatherTip)
            .Kept("GatherSettings"),
        Button("lblFullGatherHelp", u"- Help -"),
        Button("picScanStart", u"&Start Gathering")
            .Picture("SCANSTART")
            .Begins()
            .Tip(u"Gather the profile ID's of the page in the browser"),
        Button("picScanStop", u"S&top").Picture("SCANSTOP").Tip(u"Stop gathering"),
        Button("picFilterOptions", u"Fi&lters...").Picture("FILTER").Tip(u"Choose which profiles are kept"),
        Button("picRandomize", u"Shuffle")
            .Picture("RANDOMIZE")
            .Tip(u"Clicking this button will re-sort the ID's in the list in a random order"),
        Button("piccmdClearList", u"Clear").Picture("CLEARLIST").Tip(u"Clear the ID's in the list"),
        Button("picImport", u"Import").Picture("IMPORT").Tip(u"Import ID's into the list from a text file"),
        Button("picSaveToFile", u"Save")
            .Picture("SAVETOFILE")
            .Tip(u"Save the ID's in the list to a text file"),
        Button("piccmdBlackList", u"Black list").Picture("BLACKLIST").Tip(u"Manage your blacklisted ID's"),
        Button("picRemoveFriends", u"Remove friends")
            .Picture("REMOVEFRIENDS")
            .Begins()
            .Tip(u"After clicking this button, Quillmere will go through all your existing friends and "
                 u"remove those ID's from the scanned list above"),
        Box("chkSaveScanned", u"Sa&ve on exit")
            .Tip(u"Load all the current ID's to the list the next time QLM is run")
            .Kept("GatherSettings"),
        Box("chkRemoveAfterSent", u"Re&move from list after sent")
            .Tip(u"After an ID in the list has been used, it will be removed from the list")
            .Kept("GatherSettings"),
    };
}

} // namespace qlm::rows
