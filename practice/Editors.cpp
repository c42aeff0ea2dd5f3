// SPDX-License-Identifier: MIT
#include "Editors.h"

#include "Html.h"
#include "SiteHosts.h"

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

// A browser without scripts finds in "data-on-click" what the switch does.
QString SourceSwitch(const QString& name, Editor editor) {
    return Fill(
        uR"-(<li id="{n}_editsource"><a href="javascript:void(0)" title="View Source" onclick="{act}(this)"
 data-on-click="hide #{n}_f; show #{n}_editsourcearea; set #{n}_open value 1">HTML</a></li>)-",
        {{u"n", name}, {u"act", editor == Editor::Source ? u"switchSource"_s : u"openSource"_s}});
}

QString SourceArea(const QString& name) {
    return Fill(
        uR"(<textarea class="source" id="{n}_editsourcearea" name="{n}_editsourcearea" rows="9" cols="60"
 style="display: none"></textarea><input type="hidden" class="open" id="{n}_open" name="{n}_open" value="0">)",
        {{u"n", name}});
}

} // namespace

// The field that is sent stands last: whoever looks for the editor by its text area finds it behind the
// source.
QString EditorMarkup(Editor editor, const QString& name, Breaks breaks, const QString& text) {
    if (editor == Editor::Plain)
        return Fill(uR"(<textarea id="{n}" name="{n}" rows="9" cols="60">
{text}</textarea>)",
                    {{u"n", name}, {u"text", text}});
    const bool hasSource = HasSource(editor);
    return Fill(uR"(<div class="editor" data-breaks="{breaks}">
<ul class="tools"><li>B</li><li>I</li><li>U</li>{!switch}</ul>{!source}
<iframe id="{n}_f" name="{n}_f" width="480" height="150" title="text"
 srcdoc="&lt;!DOCTYPE html&gt;&lt;html&gt;&lt;body contenteditable=&quot;true&quot;&gt;&lt;/body&gt;&lt;/html&gt;"></iframe>
<textarea class="field" id="{n}" name="{n}" style="display: none">
{text}</textarea></div>)",
                {{u"n", name},
                 {u"breaks", breaks == Breaks::Br ? u"br"_s : u"div"_s},
                 {u"switch", hasSource ? SourceSwitch(name, editor) : QString()},
                 {u"source", hasSource ? SourceArea(name) : QString()},
                 {u"text", text}});
}

QString EditorText(Editor editor, const QString& name, const Fields& form) {
    const QString field = name.toLower();
    const bool isSource = HasSource(editor) && form.value(field + u"_open"_s) == u"1";
    return form.value(isSource ? field + u"_editsourcearea"_s : field);
}

QString FormScripts() {
    return Fill(uR"(<script src="{root}/style/forms.js"></script>)", {{u"root", Url(Role::SiteRoot, {})}});
}

} // namespace qlm::practice
