#pragma once

#include <QString>

// The names of the files of a new world, under ./Resources/Defaults/ beside the running game.
class DefaultFiles
{
public:
    static constexpr int FreeAgentLists = 4;
    static constexpr int AmateurLists = 6;
    static constexpr int HelpScreens = 10;

    static QString folder();
    static QString path(const QString &fileName) { return folder() + fileName; }

    // the file names alone, so that the tool that makes them can put them elsewhere
    static QString nationsFile();
    static QString namesFile(const QString &family);
    static QString organisationFile(const QString &key);
    static QString freeAgentFile(int list); // 1 to 4
    static QString amateurFile(int list);   // 1 to 6
    static QString helpFile();
};
