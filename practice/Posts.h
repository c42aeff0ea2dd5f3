// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <algorithm>
#include <optional>

namespace qlm::practice {

/// What somebody has told all their friends.
struct Post {
    enum class Kind {
        Bulletin,
        Status,
        Change, ///< of the profile; the stream tells it by itself
    };

    int number = 0;
    Kind kind = Kind::Bulletin;
    qint64 author = 0;
    QString subject; ///< of a bulletin
    QString body;
    QDateTime when;
    bool takesComments = true; ///< of a bulletin
};

/// Everything that has been posted and not deleted. A number is given away once, but a post may bring its
/// own.
class Posts {
public:
    const Post& Add(Post post) {
        if (post.number == 0)
            post.number = m_next++;
        return m_posts.emplaceBack(std::move(post));
    }

    /// Newest first.
    QList<Post> Of(qint64 author, Post::Kind kind) const {
        QList<Post> own;
        for (const Post& post : m_posts)
            if (post.author == author && post.kind == kind)
                own.prepend(post);
        return own;
    }

    /// What was there; nothing when that isn't the author's.
    std::optional<Post> Take(qint64 author, int number) {
        const auto post = std::ranges::find_if(
            m_posts, [&](const Post& p) { return p.number == number && p.author == author; });
        if (post == m_posts.end())
            return std::nullopt;
        const Post taken = *post;
        m_posts.erase(post);
        return taken;
    }

private:
    QList<Post> m_posts;
    int m_next = 5001;
};

} // namespace qlm::practice
