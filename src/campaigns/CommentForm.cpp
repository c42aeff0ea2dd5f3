// SPDX-License-Identifier: MIT
#include "campaigns/CommentForm.h"

#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

using FieldNames = std::vector<QString>;

const QString SharedField = u"commentText"_s;
const QString EditorBox = u"ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s;
const QString Post = u"post a comment"_s;

// Any of them says that the form has come.
const FieldNames& SignsOfForm() {
    static const FieldNames rows{EditorBox, u"ctl00$cpMain$postComment$commentTextBox"_s,
                                 u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00"_s, SharedField};
    return rows;
}

const FieldNames& TextFields() {
    static const FieldNames rows{
        u"ctl00_Main_postComment_commentTextBox"_s,
        u"ctl00_cpMain_postComment_commentTextBox"_s,
        u"ctl00_cpMain_UserWriteCommentsControl_Skin_commentTextBox"_s,
        u"ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s,
        EditorBox,
        SharedField,
    };
    return rows;
}

// Of a design with an editor the markup names one of them.
const FieldNames& Editors() {
    static const FieldNames rows{u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00"_s,
                                 u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl01"_s};
    return rows;
}

// Some designs give the name as the ID of the field. What is there has some name, be it an empty one.
Question IsThere(const QString& name) {
    return {ElementSet::Named, name, ElementText::Name, Question::Match::Contains, {}};
}

Writing Into(const QString& name, const QString& text) {
    return {ElementSet::Named, name, Writing::Kind::Value, text};
}

bool IsCaption(const QString& text) {
    return text.trimmed().toLower() == Post;
}

bool IsConfirmInput(const Element& input) {
    const QString caption = input.Value();
    return input.Read(ElementText::Type) == u"submit"_s && Has(caption, u"comment"_s) &&
           Has(caption, u"post"_s);
}

bool PostsByCaption(const Element& button) {
    return IsCaption(button.Value()) || IsCaption(button.InnerText());
}

template <typename Test> Element First(const Document& page, const QString& tag, const Test& test) {
    const std::vector<Element> elements = page.GetElementsByTagName(tag);
    const auto found = std::find_if(elements.begin(), elements.end(), test);
    return found == elements.end() ? Element() : *found;
}

// With the tree for whether one of them is disabled.
void ForeseeButtons(const Document& page) {
    using enum ElementText;
    page.Foresee({{},
                  {{ElementSet::ByTag, u"input"_s, Value},
                   {ElementSet::ByTag, u"input"_s, Type},
                   {ElementSet::ByTag, u"button"_s, Value},
                   {ElementSet::ByTag, u"button"_s, InnerText}},
                  true});
}

} // namespace

void ForeseeCommentField(const Document& page) {
    Foresight ahead;
    for (const QString& name : SignsOfForm())
        ahead.questions.push_back(IsThere(name));
    page.Foresee(ahead);
}

bool HasCommentField(const Document& page) {
    ForeseeCommentField(page);
    const FieldNames& signs = SignsOfForm();
    return std::any_of(signs.begin(), signs.end(),
                       [&page](const QString& name) { return page.Any(IsThere(name)); });
}

void TypeComment(const Document& page, const QString& text) {
    std::vector<Writing> writings;
    for (const QString& name : TextFields())
        writings.push_back(Into(name, text));
    page.Write(writings);
}

void TypeSharedField(const Document& page, const QString& text) {
    page.Write({Into(SharedField, text)});
}

bool HasEditor(const QString& html) {
    const FieldNames& editors = Editors();
    return std::any_of(editors.begin(), editors.end(),
                       [&html](const QString& name) { return Has(html, name); });
}

bool HasEditorBox(const Document& page) {
    return page.Any(IsThere(EditorBox));
}

void TypeSource(const Document& page, const QString& text) {
    for (const QString& editor : Editors())
        if (const Element source = page.GetElementById(editor + u"_editsourcearea"_s)) {
            source.SetInnerText(text);
            return;
        }
}

Element FindFormButton(const Document& page) {
    const auto hasCaption = [](const Element& input) { return IsCaption(input.Value()); };
    if (const Element input = First(page, u"input"_s, hasCaption))
        return input;
    if (const Element button = First(page, u"button"_s, PostsByCaption))
        return button;
    return page.GetElementById(u"ctl00_cpMain_postComment_postcommentImageButton"_s);
}

ConfirmButton FindConfirmButton(const Document& page) {
    ForeseeButtons(page);
    const auto isDisabled = [](const Element& button) { return button.HasAttribute(u"disabled"_s); };
    const Element input = First(page, u"input"_s, IsConfirmInput);
    if (input && !isDisabled(input))
        return {input, false};
    const Element button = First(page, u"button"_s, PostsByCaption);
    if (button && !isDisabled(button))
        return {button, false};
    return {input ? input : button, input || button};
}

} // namespace qlm
