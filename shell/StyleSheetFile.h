#pragma once

#include <QString>

class QWidget;

// The game's look lives in style sheet files beside the program; they are read anew each time
// a screen is built, so editing one shows on the next screen without a restart.
namespace StyleSheetFile {

// the text of the file up to its first NUL byte; false when it can't be opened
bool read(const QString &fileName, QString &sheet);
// sets the file's sheet on `widget`; a missing file leaves it unstyled
void apply(QWidget *widget, const QString &fileName);
// lets a widget's style sheet paint its background, as plain widgets otherwise don't
void paintBackground(QWidget *widget);

} // namespace StyleSheetFile
