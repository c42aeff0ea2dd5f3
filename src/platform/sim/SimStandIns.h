// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

namespace qlm {

// One act that stands in for a script of a simulated page. The acts are written in attributes, "; " between
// them, an optional "after 2s" (or "after 500ms") before each:
//   goto URL
//   show #id
//   hide #id
//   set #id name value    the names "value", "innertext" and "innerhtml", or an attribute;
//                         "disabled false" takes that one away
//   remove #id
//   append #id <html>
//   submit #id
//   click #id
//   send #id              the form's fields go out beside the page, which stays; what is answered shows
//   nowhere
//
// Where the attributes stand:
//   data-on-click    on what is clicked; on a link or a button in place of what the click does otherwise
//   data-on-change   on a field or around it: carried out when the field's "onchange" is fired
//   data-on-focus    carried out when the element gets the focus
//   data-on-input    carried out when a value or a text was written to the element
//   data-on-load     carried out once the page is complete
//   data-on-scroll   carried out when the window was scrolled to its end
//   data-on-script   a part of a script's text: data-do of the same element is carried out when a
//                    "javascript:" address that holds it is run
struct StandIn {
    enum class Verb { Goto, Show, Hide, Set, Remove, Append, Submit, Click, Send };

    Verb verb;
    int afterMs = 0;
    QString target;   // the id, or the address of Goto
    QString name;     // of Set
    QString argument; // value or HTML
};

struct StandIns {
    std::vector<StandIn> acts;
    QString problem; // what could not be understood; empty when all is well
};

StandIns ParseStandIns(const QString& text);

// "3s", "500ms" or "2m"; -1 when it is no duration.
int ParseDuration(const QString& text);

} // namespace qlm
