#include "SourceData.h"
#include "fighters/GameLists.h"

#include "world/Entity_Match.h"
#include "world/OrgTable.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>

namespace {

// names of the game that a family's lists must reach, so that thousands of full names exist
constexpr int FewestNames = 100;
constexpr int SmallestRoster = 30;
constexpr int LargestRoster = 50;
constexpr int QualifierCount = 8;

const QStringList prestigeLevels = {"Elite", "World Class", "International", "National", "Regional"};

const QStringList helpScreens = {"New Game", "Profile",       "Training", "Management", "Events",
                                 "Database", "Organizations", "Next Day", "Combat",     "FAQ"};

// the word of a card text and the match type it stands for
struct CardWord {
    const char *word;
    const char *matchType;
};
constexpr CardWord cardWords[] = {
    {"Single", Entity_Match::SingleMatch},
    {"Championship", Entity_Match::ChampionshipMatch},
    {"Qualifier", Entity_Match::TournamentQualifier},
    {"Quarterfinal", Entity_Match::TournamentQuarterfinal},
    {"Semifinal", Entity_Match::TournamentSemifinal},
    {"Final", Entity_Match::TournamentFinal},
};

// the shape of a finals night behind its single matches
const QStringList finalsShape = {Entity_Match::TournamentQuarterfinal, Entity_Match::TournamentQuarterfinal,
                                 Entity_Match::TournamentQuarterfinal, Entity_Match::TournamentQuarterfinal,
                                 Entity_Match::TournamentSemifinal,    Entity_Match::TournamentSemifinal,
                                 Entity_Match::TournamentFinal};

SourceData::Weights readWeights(const QJsonArray &array)
{
    SourceData::Weights weights;
    for (const QJsonValue &row : array) {
        const QJsonArray pair = row.toArray();
        weights.append({pair.at(0).toString(), pair.at(1).toInt()});
    }
    return weights;
}

bool readLines(const QString &path, QStringList &lines)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    QTextStream in(&file);
    in.setEncoding(QStringConverter::Utf8);
    while (!in.atEnd())
        lines.append(in.readLine());
    return true;
}

bool isComment(const QString &line)
{
    return line.trimmed().isEmpty() || line.startsWith('#');
}

bool holdsTournament(const QStringList &card)
{
    return card.contains(Entity_Match::TournamentQualifier) || card.contains(Entity_Match::TournamentQuarterfinal) ||
           card.contains(Entity_Match::TournamentSemifinal) || card.contains(Entity_Match::TournamentFinal);
}

} // namespace

void SourceData::fault(const QString &file, const QString &text)
{
    errors.append(file + ": " + text);
}

QString SourceData::nameFault(const QString &name)
{
    // results are read for "Win", "Loss", "KO" and "Decision", event names are cut at "." and
    // carry " vs.", and a title row is cut at "|"
    static const QStringList marks = {"Win", "Loss", "KO", "Decision", ".", "|", " vs", "TBA", "N/A"};
    if (name.trimmed() != name || name.isEmpty())
        return "\"" + name + "\" is empty or has blanks at its ends";
    for (const QString &mark : marks)
        if (name.contains(mark))
            return "\"" + name + "\" holds \"" + mark + "\"";
    if (name.contains(QRegularExpression("[0-9]")))
        return "\"" + name + "\" holds a digit";
    return {};
}

QStringList SourceData::parseCard(const QString &text, QString &fault)
{
    QStringList card;
    static const QRegularExpression part("^(?:(\\d+) +)?(\\w+)$");
    for (const QString &token : text.split(',')) {
        const QRegularExpressionMatch match = part.match(token.trimmed());
        const CardWord *word = nullptr;
        for (const CardWord &row : cardWords)
            if (match.hasMatch() && match.captured(2) == QLatin1String(row.word))
                word = &row;
        if (!word) {
            fault = "the card part \"" + token.trimmed() + "\" is no count and match kind";
            return {};
        }
        const int count = match.captured(1).isEmpty() ? 1 : match.captured(1).toInt();
        for (int i = 0; i < count; ++i)
            card.append(word->matchType);
    }
    return card;
}

QString SourceData::cardFault(const QStringList &card)
{
    if (card.isEmpty())
        return "the card is empty";
    const int championships = int(card.count(Entity_Match::ChampionshipMatch));
    const int qualifiers = int(card.count(Entity_Match::TournamentQualifier));
    const bool rounds = card.contains(Entity_Match::TournamentQuarterfinal) ||
                        card.contains(Entity_Match::TournamentSemifinal) ||
                        card.contains(Entity_Match::TournamentFinal);
    if (championships > 1 || (championships == 1 && card.last() != Entity_Match::ChampionshipMatch))
        return "a title night has one championship match, and it is the main event";
    if (championships == 1 && holdsTournament(card))
        return "a title night holds no tournament matches";
    if (qualifiers > 0) {
        if (rounds)
            return "a qualifier night holds no later rounds";
        if (qualifiers != QualifierCount || card.last() != Entity_Match::TournamentQualifier)
            return "a qualifier night ends with eight qualifiers";
        if (card.mid(card.size() - QualifierCount).count(Entity_Match::TournamentQualifier) != QualifierCount)
            return "the eight qualifiers stand together at the end of the card";
    }
    if (rounds) {
        if (card.size() < finalsShape.size() || card.mid(card.size() - finalsShape.size()) != finalsShape)
            return "a finals night ends with four quarterfinals, two semifinals and the final";
        if (card.mid(0, card.size() - finalsShape.size()).count(Entity_Match::SingleMatch) !=
            card.size() - finalsShape.size())
            return "a finals night holds single matches before its tournament and nothing else";
    }
    return {};
}

void SourceData::readNations(const QString &path)
{
    QStringList lines;
    if (!readLines(path, lines)) {
        fault(path, "can't be read");
        return;
    }
    nations = NationTable::Lists(NationTable::RegionCount);
    QSet<QString> seen;
    int lastRegion = 0;
    for (const QString &line : std::as_const(lines)) {
        if (isComment(line))
            continue;
        const QStringList columns = line.split('\t');
        const int region = NationTable::regionIndex(columns.value(0));
        if (columns.size() != 2 || region < 0) {
            fault(path, "\"" + line + "\" is no region and nation");
            continue;
        }
        if (region < lastRegion)
            fault(path, "the regions stand out of order at \"" + line + "\"");
        lastRegion = region;
        if (seen.contains(columns[1]))
            fault(path, columns[1] + " stands twice");
        seen.insert(columns[1]);
        nations[region].append(columns[1]);
    }
    for (int i = 0; i < NationTable::MainCount; ++i)
        if (!nations.value(NationTable::mainRegion(i)).contains(NationTable::mainNation(i)))
            fault(path, NationTable::mainNation(i) + " is missing from " +
                            NationTable::regions().at(NationTable::mainRegion(i)));
}

void SourceData::readNames(const QString &folder)
{
    for (const QString &family : NationTable::families()) {
        const QString path = folder + "/" + family + ".txt";
        QStringList lines;
        if (!readLines(path, lines)) {
            fault(path, "can't be read");
            continue;
        }
        FighterGenerator::Names lists;
        QStringList *into = nullptr;
        for (const QString &line : std::as_const(lines)) {
            if (isComment(line))
                continue;
            if (line == "[first]") {
                into = &lists.first;
            } else if (line == "[last]") {
                into = &lists.last;
            } else if (!into) {
                fault(path, "a name stands before [first]");
            } else {
                const QString problem = nameFault(line);
                if (!problem.isEmpty())
                    fault(path, problem);
                else if (into->contains(line))
                    fault(path, line + " stands twice");
                else
                    into->append(line);
            }
        }
        if (lists.first.size() < FewestNames || lists.last.size() < FewestNames)
            fault(path, QString("holds %1 first and %2 last names, fewer than %3")
                            .arg(lists.first.size())
                            .arg(lists.last.size())
                            .arg(FewestNames));
        names.insert(family, lists);
    }
}

void SourceData::readOrganisation(const QString &path, int index)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fault(path, "can't be read");
        return;
    }
    QJsonParseError parseError;
    const QJsonObject json = QJsonDocument::fromJson(file.readAll(), &parseError).object();
    if (parseError.error != QJsonParseError::NoError) {
        fault(path, parseError.errorString() + QString(" at byte %1").arg(parseError.offset));
        return;
    }
    Organisation org;
    org.key = json["key"].toString();
    org.name = json["name"].toString();
    org.ceo = json["ceo"].toString();
    org.nation = json["nation"].toString();
    org.note = json["note"].toString();
    org.prestige = json["prestige"].toString();
    org.bio = json["bio"].toString();
    const QJsonObject roster = json["roster"].toObject();
    org.rosterSize = roster["size"].toInt();
    org.released = roster["released"].toInt();
    org.skillLow = roster["skill"].toArray().at(0).toInt();
    org.skillHigh = roster["skill"].toArray().at(1).toInt();
    org.rankingTop = roster["ranking"].toArray().at(0).toInt();
    org.rankingBottom = roster["ranking"].toArray().at(1).toInt();
    org.origins = readWeights(roster["origins"].toArray());
    org.backgrounds = readWeights(roster["backgrounds"].toArray());
    const QJsonObject titles = json["titles"].toObject();
    org.championship = titles["championship"].toString();
    org.grandPrix = titles["grandPrix"].toString();
    for (const QJsonValue &value : json["events"].toArray()) {
        const QJsonObject row = value.toObject();
        Night night;
        night.date =
            QDate::fromString(QString::number(world.start.year()) + "-" + row["date"].toString(), "yyyy-MM-dd");
        night.name = row["name"].toString();
        night.city = row["city"].toString();
        night.type = row["type"].toString();
        QString problem;
        night.card = parseCard(row["card"].toString(), problem);
        if (!problem.isEmpty())
            fault(path, night.name + ": " + problem);
        org.calendar.append(night);
    }

    if (org.key != OrgTable::key(index) || org.name != OrgTable::name(index))
        fault(path, "is not " + OrgTable::key(index) + " \"" + OrgTable::name(index) + "\"");
    if (!prestigeLevels.contains(org.prestige))
        fault(path, "\"" + org.prestige + "\" is no prestige level");
    if (org.rosterSize < SmallestRoster || org.rosterSize > LargestRoster)
        fault(
            path,
            QString("a roster of %1 is not from %2 to %3").arg(org.rosterSize).arg(SmallestRoster).arg(LargestRoster));
    if (org.skillLow > org.skillHigh || org.rankingTop >= org.rankingBottom)
        fault(path, "the skill band or the ranking range runs the wrong way");
    int weight = 0;
    for (const auto &[origin, share] : std::as_const(org.origins)) {
        weight += share;
        bool known = origin == "*" || NationTable::regionIndex(origin) >= 0;
        for (const QStringList &list : std::as_const(nations))
            known = known || list.contains(origin);
        if (!known)
            fault(path, "the origin \"" + origin + "\" is no nation, region or \"*\"");
    }
    if (weight != 100)
        fault(path, QString("the origins weigh %1, not 100").arg(weight));
    for (const auto &[background, share] : std::as_const(org.backgrounds))
        if (!GameLists::backgrounds().contains(background) || share < 0 || share > 100)
            fault(path, "\"" + background + "\" is no fighting background of a share up to 100");
    if (!org.championship.isEmpty() && !org.championship.contains("World Championship"))
        fault(path, "a lasting title holds \"World Championship\"");
    if (!org.grandPrix.isEmpty() &&
        (!org.grandPrix.contains("Grand Prix") || org.grandPrix.contains(QRegularExpression("\\b[0-9]{4}\\b"))))
        fault(path, "a tournament title holds \"Grand Prix\" and no year of its own");
    // the title booking reads the first row, which must be the lasting title
    if (!org.championship.isEmpty() && !org.grandPrix.isEmpty() && !(org.championship < org.grandPrix + " 2000"))
        fault(path, "the lasting title must come before the tournament title in key order");
    checkCalendar(org, path);
    organisations.append(org);
}

void SourceData::checkCalendar(const Organisation &org, const QString &path)
{
    QSet<QString> names;
    QDate last;
    for (int i = 0; i < org.calendar.size(); ++i) {
        const Night &night = org.calendar[i];
        const QString where = night.name.isEmpty() ? QString("night %1").arg(i + 1) : night.name;
        if (!night.date.isValid() || night.date.year() != world.start.year())
            fault(path, where + ": no date of the first year");
        else if (last.isValid() && night.date <= last)
            fault(path, where + ": the calendar is not in date order");
        last = night.date;
        if (night.name.isEmpty() || night.name.contains('.') || night.name.contains("vs") || names.contains(night.name))
            fault(path, where + ": a night's name is given once and holds neither \".\" nor \"vs\"");
        names.insert(night.name);
        const QString problem = cardFault(night.card);
        if (!problem.isEmpty())
            fault(path, where + ": " + problem);
        if (night.card.contains(Entity_Match::ChampionshipMatch) && org.championship.isEmpty())
            fault(path, where + ": a title night needs the organisation's lasting title");
        const bool finals = night.card.contains(Entity_Match::TournamentFinal);
        if (finals && org.grandPrix.isEmpty())
            fault(path, where + ": a finals night needs the organisation's tournament title");
        if (finals && !night.name.contains(QString::number(world.start.year())))
            fault(path, where + ": a finals night carries the year in its name");
        // the winners of the qualifiers go on to the very next night
        if (night.card.contains(Entity_Match::TournamentQualifier) &&
            (i + 1 >= org.calendar.size() || !org.calendar[i + 1].card.contains(Entity_Match::TournamentFinal)))
            fault(path, where + ": a qualifier night is followed by the finals night");
        if (holdsTournament(night.card) && org.rosterSize <= 16)
            fault(path, where + ": a tournament needs a roster of more than 16");
    }
}

void SourceData::readWorld(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fault(path, "can't be read");
        return;
    }
    QJsonParseError parseError;
    const QJsonObject json = QJsonDocument::fromJson(file.readAll(), &parseError).object();
    if (parseError.error != QJsonParseError::NoError) {
        fault(path, parseError.errorString());
        return;
    }
    world.seed = quint32(json["seed"].toInteger());
    world.firstId = json["firstId"].toInt();
    world.historyFrom = json["historyFrom"].toInt();
    world.start = QDate::fromString(json["start"].toString(), "yyyy-MM-dd");
    const auto readLists = [](const QJsonArray &rows) {
        QList<FighterList> lists;
        for (const QJsonValue &value : rows) {
            const QJsonObject row = value.toObject();
            FighterList list;
            list.list = row["list"].toInt();
            for (const QJsonValue &level : row["releasedBy"].toArray())
                list.releasedBy.append(level.toString());
            list.count = row["count"].toInt();
            list.ageLow = row["ages"].toArray().at(0).toInt();
            list.ageHigh = row["ages"].toArray().at(1).toInt();
            lists.append(list);
        }
        return lists;
    };
    world.freeAgents = readLists(json["freeAgents"].toArray());
    world.amateurs = readLists(json["amateurs"].toArray());
    if (!world.start.isValid() || world.historyFrom >= world.start.year())
        fault(path, "the first day and the first year of the past don't fit");
    // an id below 10 would read as a position in the user's list of fighters
    if (world.firstId < 10)
        fault(path, "the first id is below 10");
    for (int i = 0; i < world.amateurs.size(); ++i)
        if (world.amateurs[i].list != i + 1 || world.amateurs[i].ageHigh >= 18 ||
            world.amateurs[i].ageLow > world.amateurs[i].ageHigh)
            fault(path, QString("amateur list %1 is out of order or not under 18").arg(i + 1));
    for (int i = 0; i < world.freeAgents.size(); ++i)
        if (world.freeAgents[i].list != i + 1)
            fault(path, QString("free agent list %1 is out of order").arg(i + 1));
}

void SourceData::readHelp(const QString &path)
{
    QStringList lines;
    if (!readLines(path, lines)) {
        fault(path, "can't be read");
        return;
    }
    QStringList screens;
    QString topic;
    QStringList paragraphs;
    QString paragraph;
    const auto endParagraph = [&] {
        if (!paragraph.isEmpty())
            paragraphs.append(paragraph);
        paragraph.clear();
    };
    const auto endTopic = [&] {
        endParagraph();
        if (!topic.isEmpty() && !help.isEmpty()) {
            if (help.last().contains(topic))
                fault(path, "the topic \"" + topic + "\" stands twice");
            help.last().insert(topic, paragraphs.join("\n\n"));
        }
        topic.clear();
        paragraphs.clear();
    };
    for (const QString &line : std::as_const(lines)) {
        if (line.startsWith('#'))
            continue;
        if (line.startsWith("== ")) {
            endTopic();
            topic = line.mid(3).trimmed();
        } else if (line.startsWith("= ")) {
            endTopic();
            screens.append(line.mid(2).trimmed());
            help.append(QMap<QString, QString>());
        } else if (line.trimmed().isEmpty()) {
            endParagraph();
        } else if (line.startsWith("- ")) {
            // a list keeps one line for each of its points
            paragraph += (paragraph.isEmpty() ? "" : "\n") + line.trimmed();
        } else {
            paragraph += (paragraph.isEmpty() ? "" : " ") + line.trimmed();
        }
    }
    endTopic();
    if (screens != helpScreens)
        fault(path, "the screens are not " + helpScreens.join(", ") + " in this order");
    for (int i = 0; i < help.size(); ++i)
        if (help[i].isEmpty())
            fault(path, screens.value(i) + " has no topics");
}

bool SourceData::load(const QString &dataFolder)
{
    errors.clear();
    readWorld(dataFolder + "/world.json");
    readNations(dataFolder + "/nations.tsv");
    readNames(dataFolder + "/names");
    for (int i = 0; i < OrgTable::Count; ++i)
        readOrganisation(dataFolder + "/orgs/" + OrgTable::key(i) + ".json", i);
    readHelp(dataFolder + "/help.txt");
    return errors.isEmpty();
}
