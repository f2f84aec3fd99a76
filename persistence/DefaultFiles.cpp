#include "persistence/DefaultFiles.h"

QString DefaultFiles::folder()
{
    return QStringLiteral("./Resources/Defaults/");
}

QString DefaultFiles::nationsFile()
{
    return QStringLiteral("default_nations.dat");
}

QString DefaultFiles::namesFile(const QString &family)
{
    return family + QStringLiteral("_names.dat");
}

QString DefaultFiles::organisationFile(const QString &key)
{
    return QStringLiteral("default_orgs_") + key + QStringLiteral(".dat");
}

QString DefaultFiles::freeAgentFile(int list)
{
    return QStringLiteral("default_list_FreeAgent%1.dat").arg(list);
}

QString DefaultFiles::amateurFile(int list)
{
    return QStringLiteral("default_list_Amateur%1.dat").arg(list);
}

QString DefaultFiles::helpFile()
{
    return QStringLiteral("help_screen_data.dat");
}
