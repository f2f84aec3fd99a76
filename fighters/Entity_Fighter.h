#pragma once

#include <QDataStream>
#include <QDate>
#include <QList>
#include <QMultiMap>
#include <QString>
#include <QStringList>

#include <array>

// Every man of the game, from a student to a world champion: twelve strings, a birth date, a
// career history, a title list and 95 integers, of which 83 are his hidden attributes. The
// positions of the strings and the integers are fixed: saves, exports and the match engine
// address a field by its position, so an entry that moved would turn one skill into another.
class Entity_Fighter
{
public:
    enum Text : int {
        FirstName,
        LastName,
        Nationality,
        Region,
        FightingBackground,
        FightingStyle,
        Organisation,
        Reputation,
        ShortsColour,
        TrimColour,
        HairColour,
        Bio,
        TextCount
    };

    enum Number : int {
        Age,
        Wins,
        Losses,
        Kos,
        // the strikes stand in threes: how fast, how well, how hard
        JabSpeed,
        JabTechnique,
        JabPower,
        HookSpeed,
        HookTechnique,
        HookPower,
        CrossSpeed,
        CrossTechnique,
        CrossPower,
        UppercutSpeed,
        UppercutTechnique,
        UppercutPower,
        LowKickSpeed,
        LowKickTechnique,
        LowKickPower,
        MidKickSpeed,
        MidKickTechnique,
        MidKickPower,
        HighKickSpeed,
        HighKickTechnique,
        HighKickPower,
        FrontKickSpeed,
        FrontKickTechnique,
        FrontKickPower,
        KneeSpeed,
        KneeTechnique,
        KneePower,
        ElbowSpeed,
        ElbowTechnique,
        ElbowPower,
        DirtyBoxingSpeed,
        DirtyBoxingTechnique,
        DirtyBoxingPower,
        BodyPunchSpeed,
        BodyPunchTechnique,
        BodyPunchPower,
        // the defences stand in pairs: how fast, how well
        HeadMoveSpeed,
        HeadMoveTechnique,
        BodyMoveSpeed,
        BodyMoveTechnique,
        KickGuardSpeed,
        KickGuardTechnique,
        PunchGuardSpeed,
        PunchGuardTechnique,
        LegGuardSpeed,
        LegGuardTechnique,
        BodyGuardSpeed,
        BodyGuardTechnique,
        ClinchGuardSpeed,
        ClinchGuardTechnique,
        // the general attributes
        ClinchControl,
        ClinchEscape,
        Resilience,
        Endurance,
        Conditioning,
        LungCapacity,
        Durability,
        Balance,
        FootSpeed,
        Reflexes,
        Burst,
        HandSpeed,
        MoveSpeed,
        EvasionSpeed,
        KickSpeed,
        Strength,
        PunchPower,
        Coordination,
        Grappling,
        Torque,
        Snap,
        FightIQ,
        Awareness,
        Willpower,
        Composure,
        Instinct,
        Aggression,
        Ferocity,
        Anticipation,
        Precision,
        Concentration,
        RingSense,
        Discipline,
        // beyond the attributes
        HeadDurability,
        BodyDurability,
        ContractFightsLeft,
        BodyImage,
        HeadImage,
        FaceImage,
        Id,
        RankingScore,
        NumberCount
    };

    static constexpr int FirstAttribute = JabSpeed;
    static constexpr int LastAttribute = Discipline;
    static constexpr int AttributeCount = LastAttribute - FirstAttribute + 1;
    static constexpr int StrikeCount = 12;
    static constexpr int DefenceCount = 7;

    // the three attributes of strike i (0 Jab ... 11 Body Punching) and the two of defence i
    static constexpr Number strikeSpeed(int strike) { return Number(JabSpeed + 3 * strike); }
    static constexpr Number strikeTechnique(int strike) { return Number(JabTechnique + 3 * strike); }
    static constexpr Number strikePower(int strike) { return Number(JabPower + 3 * strike); }
    static constexpr Number defenceSpeed(int defence) { return Number(HeadMoveSpeed + 2 * defence); }
    static constexpr Number defenceTechnique(int defence) { return Number(HeadMoveTechnique + 2 * defence); }

    using History = QMultiMap<QDate, QString>;

    Entity_Fighter();

    void pack(QStringList &strings, QList<int> &integers, QDate &birth, History &history, QStringList &titles) const;
    // nothing is checked: the lists must hold at least 12 strings and 95 integers
    void unpack(const QStringList &strings, const QList<int> &integers, const QDate &birth, const History &history,
                const QStringList &titles);
    QStringList stringList() const;
    QList<int> integerList() const;

    QString text(Text field) const { return texts[field]; }
    void setText(Text field, const QString &value) { texts[field] = value; }
    int number(Number field) const { return numbers[field]; }
    void setNumber(Number field, int value) { numbers[field] = value; }
    void addToNumber(Number field, int amount) { numbers[field] += amount; }

    QString fullName() const;
    int getId() const { return numbers[Id]; }
    void setId(int id) { numbers[Id] = id; }
    int getRankingScore() const { return numbers[RankingScore]; }
    void addToRankingScore(int amount) { numbers[RankingScore] += amount; }

    QDate getBirthDate() const { return birthDate; }
    void setBirthDate(const QDate &date) { birthDate = date; }
    History history() const { return careerHistory; }
    QStringList titleList() const { return titles; }
    // a second match on one date stands beside the first
    void addHistoryEntry(const QDate &date, const QString &line) { careerHistory.insert(date, line); }
    void setTitleList(const QStringList &list) { titles = list; }

    // the colours (shorts, trim, hair) and the image numbers (body, head, face) of the portrait
    void appearance(QStringList &colours, QList<int> &images) const;

    void setContract(const QString &organisation, int fightsLeft);
    void setBio(const QString &bio) { texts[Bio] = bio; }

    // his age on `date`: one more when the date is his birthday; `oldAge` gets the age before
    int ageWithBirthday(const QDate &date, int *oldAge = nullptr) const;

    // every attribute back into 0 to 99; the numbers beyond the attributes are left alone
    void clampAttributes();
    // his birthday: a year older, and every attribute moves by the growth of the age he leaves
    void developOneYear();
    // the news of his birthday, with the age he has now: "Al Ames has turned 25 years old."
    QString birthdayLine() const;
    // the mean of the 83 attributes, rounded towards 0: what the organisations weigh a man by
    int skillLevel() const;

    // pack, stream and unpack give the same record
    bool operator==(const Entity_Fighter &other) const;

    // --- Career, reputation and skill levels --------------------------------------------------
    // Enters a match: the line goes into the history, the record counts up, a title is won,
    // retained or lost, and a fight comes off the contract. `result` is extended by the title
    // text (" - Won ", " - Retained ", " - Lost ").
    void addResult(const QDate &date, QString &result, const QString &matchType);
    // a world fighter's label, read loosely off his ranking score so that neighbours may differ
    void updateReputationFromRanking();
    // every attribute behind the skill moves by `step`; the caller clamps at the end of its change
    void moveSkillAttributes(int skill, int step);

private:
    std::array<QString, TextCount> texts;
    QDate birthDate;
    History careerHistory;
    QStringList titles;
    std::array<int, NumberCount> numbers;
};

QDataStream &operator<<(QDataStream &out, const Entity_Fighter &fighter);
QDataStream &operator>>(QDataStream &in, Entity_Fighter &fighter);
