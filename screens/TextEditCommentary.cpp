#include "screens/TextEditCommentary.h"

#include <QTextEdit>

TextEditCommentary::TextEditCommentary(QTextEdit *textEdit)
    : textEdit(textEdit)
{
}

void TextEditCommentary::append(const QString &paragraph)
{
    // an empty paragraph is kept: it is the breath between two exchanges
    if (textEdit)
        textEdit->append(paragraph);
}
