#pragma once

#include "match/CommentarySink.h"

#include <QStringList>

// the commentary of a match that has no screen, one entry per paragraph
class CommentaryBuffer : public CommentarySink
{
public:
    void append(const QString &paragraph) override { lines.append(paragraph); }
    const QStringList &paragraphs() const { return lines; }
    void clear() { lines.clear(); }

private:
    QStringList lines;
};
