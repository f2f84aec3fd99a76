#pragma once

#include "match/CommentarySink.h"

#include <QPointer>

class QTextEdit;

// the fight night's commentary: every paragraph of the engine lands in the visible text box
class TextEditCommentary : public CommentarySink
{
public:
    explicit TextEditCommentary(QTextEdit *textEdit);
    void append(const QString &paragraph) override;

private:
    QPointer<QTextEdit> textEdit;
};
