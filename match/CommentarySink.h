#pragma once

#include <QString>

// Where the commentary of a match goes: the fight night shows it in its text box, a match of
// the world keeps it in a buffer that nobody reads. Each append is one paragraph; an empty
// paragraph is a paragraph too.
class CommentarySink
{
public:
    virtual ~CommentarySink() = default;
    virtual void append(const QString &paragraph) = 0;
};
