#pragma once

#include <QString>

// The one question of the shell: a modal dialog with "Accept" and "Cancel" in the game's
// brown and tan, confirmed when accepted.
class ConfirmDialog
{
public:
    static bool ask(const QString &question);
    // the sheet every dialog of the game shares
    static QString styleSheet();
};
