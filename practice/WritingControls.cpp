// SPDX-License-Identifier: MIT
#include "WritingControls.h"

#include "BulletinDesigns.h"
#include "CommentDesigns.h"
#include "ComposeDesigns.h"
#include "FormChoice.h"
#include "Refusals.h"
#include "StatusDesigns.h"
#include "World.h"

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostPosts = 1000;

template <typename Row> void SetForm(Writing& writing, std::span<const Row> designs, Arguments& args) {
    const bool isForAll = args.NextIs("all"_L1);
    const qint64 target = isForAll ? 0 : args.Number();
    const QString name = args.NextIs("off"_L1) ? QString() : args.Word();
    args.End();
    if (!name.isEmpty() && !FormNamed(designs, name))
        throw BadControl(u"unknown form: "_s + name);
    if (isForAll)
        writing.SetFormOfAll(name);
    else
        writing.SetForm(target, name);
}

void SetOutcome(Writing& writing, Arguments& args) {
    const qint64 target = args.Number();
    const QString word = args.Word();
    args.End();
    RefuseIfWrong(writing.answers.Fix(target, word));
}

void SetShare(Writing& writing, Arguments& args) {
    const QString word = args.Word();
    const int percent = args.Count();
    args.End();
    RefuseIfWrong(writing.answers.SetShare(word, percent));
}

void SetLimit(Writing& writing, Arguments& args) {
    std::optional<int> limit;
    if (!args.NextIs("off"_L1))
        limit = args.Count();
    args.End();
    writing.SetDailyLimit(limit);
}

void SetRefusal(Writing& writing, Arguments& args) {
    const qint64 target = args.Number();
    const int number = args.NextIs("off"_L1) ? 0 : args.Count();
    args.End();
    if (number != 0 && RefusalText(number, {}).isEmpty())
        throw BadControl(u"no refusal has the number %1"_s.arg(number));
    writing.answers.SetRefusal(target, number);
}

// In place of what the account has posted so far.
void SetPosts(World& world, Post::Kind kind, Arguments& args) {
    const qint64 author = args.Number();
    const int count = args.Count();
    args.End();
    if (count > mostPosts)
        throw BadControl(u"at most %1"_s.arg(mostPosts));
    for (const Post& post : world.posts.Of(author, kind))
        world.posts.Take(author, post.number);
    for (int i = 1; i <= count; ++i)
        world.posts.Add({.kind = kind,
                         .author = author,
                         .subject = u"Old news %1"_s.arg(i),
                         .body = u"This was number %1."_s.arg(i),
                         .when = world.now()});
}

} // namespace

void SetMessageForm(World& world, Arguments& args) {
    SetForm(world.messages, ComposeDesigns(), args);
}

void SetCommentForm(World& world, Arguments& args) {
    SetForm(world.comments, CommentDesigns(), args);
}

void SetMessageOutcome(World& world, Arguments& args) {
    SetOutcome(world.messages, args);
}

void SetCommentOutcome(World& world, Arguments& args) {
    SetOutcome(world.comments, args);
}

void SetMessageShare(World& world, Arguments& args) {
    SetShare(world.messages, args);
}

void SetCommentShare(World& world, Arguments& args) {
    SetShare(world.comments, args);
}

void RefuseMessage(World& world, Arguments& args) {
    SetRefusal(world.messages, args);
}

void RefuseComment(World& world, Arguments& args) {
    SetRefusal(world.comments, args);
}

void LimitMessages(World& world, Arguments& args) {
    SetLimit(world.messages, args);
}

void LimitComments(World& world, Arguments& args) {
    SetLimit(world.comments, args);
}

void SetBulletinForm(World& world, Arguments& args) {
    SetForm(world.bulletins, BulletinDesigns(), args);
}

void SetStatusForm(World& world, Arguments& args) {
    SetForm(world.statuses, StatusDesigns(), args);
}

void SetBulletinOutcome(World& world, Arguments& args) {
    SetOutcome(world.bulletins, args);
}

void SetStatusOutcome(World& world, Arguments& args) {
    SetOutcome(world.statuses, args);
}

void RefuseBulletin(World& world, Arguments& args) {
    SetRefusal(world.bulletins, args);
}

void RefuseStatus(World& world, Arguments& args) {
    SetRefusal(world.statuses, args);
}

void LimitBulletins(World& world, Arguments& args) {
    SetLimit(world.bulletins, args);
}

void LimitStatuses(World& world, Arguments& args) {
    SetLimit(world.statuses, args);
}

void SetBulletins(World& world, Arguments& args) {
    SetPosts(world, Post::Kind::Bulletin, args);
}

void SetStatuses(World& world, Arguments& args) {
    SetPosts(world, Post::Kind::Status, args);
}

void SetMail(World& world, Arguments& args) {
    const qint64 id = args.Number();
    const bool has = args.OnOff();
    args.End();
    world.accounts.SetMail(id, has);
}

} // namespace qlm::practice
