#include "persistence/FighterExport.h"

#include "fighters/Entity_Fighter.h"
#include "fighters/GameLists.h"
#include "fighters/NationTable.h"
#include "fighters/StreamForm.h"
#include "persistence/DataFile.h"
#include "persistence/NamedFiles.h"
#include "world/Entity_Event.h"
#include "world/GameManager.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>

namespace {

// one man with a long career fills some kilobytes; anything far larger is no export
constexpr qint64 LargestFile = 4 * 1024 * 1024;

using F = Entity_Fighter;

// The texts of a man of this game come from the game's lists; a file whose man has a style or a
// colour that no list holds was written by something else.
struct ListedText {
    F::Text field;
    const QStringList &(*list)();
    const char *what;
};

constexpr std::array<ListedText, 6> listedTexts{{
    {F::Region, &NationTable::regions, "region"},
    {F::FightingBackground, &GameLists::backgrounds, "fighting background"},
    {F::FightingStyle, &GameLists::fightingStyles, "fighting style"},
    {F::ShortsColour, &GameLists::kitColours, "shorts colour"},
    {F::TrimColour, &GameLists::kitColours, "trim colour"},
    {F::HairColour, &GameLists::hairColours, "hair colour"},
}};

// The numbers of a man of this game stand within these bounds. Attributes may stand a little
// outside 0 to 99 between a change and its clamp, so their bounds are wide; the pictures of the
// portrait are counted. His contract is not looked at: a man who fights on without one counts
// his fights below 0, and he comes in with no contract anyway.
struct NumberRange {
    int first;
    int last;
    int low;
    int high;
    const char *what;
};

constexpr std::array<NumberRange, 6> numberRanges{{
    {F::Age, F::Age, 0, 150, "age"},
    {F::Wins, F::Kos, 0, 100000, "record"},
    {F::FirstAttribute, F::BodyDurability, -200, 300, "attributes"},
    {F::BodyImage, F::BodyImage, 1, 21, "body picture"},
    {F::HeadImage, F::HeadImage, 1, 8, "head picture"},
    {F::FaceImage, F::FaceImage, 1, 4, "face picture"},
}};

void tell(QString *reason, const QString &text)
{
    if (reason)
        *reason = text;
}

bool refuse(QString *reason, const QString &text)
{
    tell(reason, text);
    return false;
}

QString notOfThisGame(const QString &why)
{
    return QStringLiteral("The file holds no fighter of this game: %1.").arg(why);
}

// what a file's man must be to be taken in
bool isManOfThisGame(const Entity_Fighter &man, QString *reason)
{
    for (const ListedText &text : listedTexts) {
        if (!text.list().contains(man.text(text.field)))
            return refuse(reason, notOfThisGame(QStringLiteral("his %1 is unknown here").arg(text.what)));
    }
    for (const NumberRange &range : numberRanges) {
        for (int field = range.first; field <= range.last; ++field) {
            const int value = man.number(F::Number(field));
            if (value < range.low || value > range.high)
                return refuse(reason,
                              notOfThisGame(QStringLiteral("a value of his %1 is out of range").arg(range.what)));
        }
    }
    if (man.number(F::Kos) > man.number(F::Wins))
        return refuse(reason, notOfThisGame("his record holds more knockouts than wins"));
    if (!man.getBirthDate().isValid())
        return refuse(reason, notOfThisGame("his birthday is no date"));
    // he must be able to go out again under his own name
    if (man.text(F::FirstName).isEmpty() || man.text(F::LastName).isEmpty() ||
        !FighterExport::files().isValidName(man.fullName()))
        return refuse(reason, notOfThisGame("his name can't be the name of a file"));
    return true;
}

} // namespace

const NamedFiles &FighterExport::files()
{
    static const NamedFiles exports(
        QStringLiteral("./Resources/Exports/"),
        {"A fighter with no name can't be exported.",
         "The name \"%1\" can't be the name of an export file: it starts with \".\".",
         "The name \"%1\" can't be the name of an export file: it holds \"/\" or \"\\\".",
         "The name of this fighter can't be the name of an export file: it holds control characters.",
         "The name of this fighter is too long for an export file."});
    return exports;
}

bool FighterExport::write(int index, QString *reason)
{
    const QStringList names = GameManager::instance().fighterNames();
    if (index < 0 || index >= names.size())
        return refuse(reason, QStringLiteral("You have no fighters to export."));
    const QString name = names[index];
    if (!files().isValidName(name, reason))
        return false;
    if (!QDir().mkpath(files().folder()))
        return refuse(reason, QStringLiteral("The folder of the exports can't be made."));
    return DataFile::write(
        files().pathOf(name), [index](QDataStream &out) { GameManager::instance().exportFighter(out, index); }, reason);
}

bool FighterExport::read(const QString &name, Entity_Fighter &man, QString *reason)
{
    if (!files().isValidName(name, reason))
        return false;
    QFile file(files().pathOf(name));
    if (!QFileInfo(file).isFile())
        return refuse(reason, QStringLiteral("There is no export file of that name."));
    if (!file.open(QIODevice::ReadOnly))
        return refuse(reason, file.errorString());
    if (file.size() > LargestFile)
        return refuse(reason, QStringLiteral("The file is far too large to hold one fighter."));
    return fromBytes(file.readAll(), man, reason);
}

bool FighterExport::fromBytes(const QByteArray &data, Entity_Fighter &man, QString *reason)
{
    if (data.isEmpty())
        return refuse(reason, QStringLiteral("The file is empty."));
    QDataStream in(data);
    in.setVersion(StreamForm::version);
    Entity_Fighter read;
    in >> read;
    if (in.status() == QDataStream::ReadPastEnd)
        return refuse(reason, QStringLiteral("The file ends before the fighter does."));
    if (in.status() != QDataStream::Ok)
        return refuse(reason, QStringLiteral("The file is damaged or holds no exported fighter."));
    if (!in.atEnd())
        return refuse(reason, QStringLiteral("The file holds more than one exported fighter."));
    if (!isManOfThisGame(read, reason))
        return false;
    man = read;
    return true;
}

bool FighterExport::importFreeAgent(const QString &name, QString *reason)
{
    Entity_Fighter man;
    if (!read(name, man, reason))
        return false;
    GameManager::instance().importFighter(man);
    return true;
}

bool FighterExport::importFantasyMatch(const QString &name, int index, Entity_Event &night, QString *reason)
{
    Entity_Fighter man;
    if (!read(name, man, reason))
        return false;
    night = GameManager::instance().makeFantasyEvent(man, index);
    return true;
}
