#pragma once

#include "screens/TextEditCommentary.h"
#include "world/FightNight.h"

#include <QWidget>

#include <array>
#include <memory>

class CornerPage;
class Entity_Event;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QShortcut;
class QTextEdit;
class QTimer;
class QVBoxLayout;

// The fight night: the whole card of one of the user's events played match by match, the
// commentary running in the text box. A press of "Next Step" and a tick of the timer both run the
// next stage of the night; the user's own match stops at every bell for his corner. The rules
// of the night are FightNight's; this screen shows it and asks.
class Module_UserEvents : public QWidget
{
    Q_OBJECT

public:
    // the timer's beats: a step of a match, the tale of the tape, the run to the end of a match
    static constexpr int StepInterval = 1457;
    static constexpr int TapeInterval = 3457;
    static constexpr int SimToEndInterval = 1;

    explicit Module_UserEvents(const Entity_Event &event, QWidget *parent = nullptr);
    ~Module_UserEvents() override;

    // for the tests and the benchmark
    const FightNight &fightNight() const { return *night; }
    QTextEdit *commentaryBox() const { return commentary; }
    QTimer *stageTimer() const { return timer; }
    CornerPage *cornerPage() const { return corner; }

public slots:
    void startEvent();
    void initializeNextMatch();
    void beginNextRound();
    void stepMatch();
    void simToEnd();
    void simMatch();
    void stopTimer();
    void callInstruction();
    void showFighterSummary();
    void showTaleOfTape();
    void hideTaleOfTape();
    void switchToMainCombat();
    void switchToCorner();

protected:
    void paintEvent(QPaintEvent *event) override;

private slots:
    // the step button and the timer lead here: the stage that is due runs
    void runStage();
    void timerButtonPressed();

private:
    using Stage = void (Module_UserEvents::*)();

    QWidget *buildCombatPanel();
    QWidget *buildTopPanel();
    QWidget *buildBottomPanel();
    QWidget *buildTaleOfTape();
    void setStage(Stage next) { stage = next; }
    bool timerRunning() const;
    void fillInstructions();
    void fillCard();
    void showNamesAndClock();
    void endOfMatch();
    void concludeEvent();
    // the step button stands in the bottom panel, or in the corner between rounds
    void putStepButtonBack();

    std::unique_ptr<TextEditCommentary> sink;
    std::unique_ptr<FightNight> night;
    Stage stage = nullptr;

    QVBoxLayout *screenLayout;
    QWidget *combatPanel = nullptr;
    QGridLayout *bottomGrid = nullptr;
    QLabel *logo = nullptr;
    QLabel *eventName = nullptr;
    QComboBox *cardBox = nullptr;
    QComboBox *instructionBox = nullptr;
    QTextEdit *commentary = nullptr;
    std::array<QLabel *, 2> portraits{};
    std::array<QLabel *, 2> flags{};
    std::array<QLabel *, 2> names{};
    QLabel *roundLabel = nullptr;
    QLabel *clockLabel = nullptr;
    QWidget *tape = nullptr;
    // name, age, nationality, background, record of each man
    std::array<std::array<QLabel *, 5>, 2> tapeFields{};
    QPushButton *timerButton = nullptr;
    QPushButton *stepButton = nullptr;
    QPushButton *simToEndButton = nullptr;
    QTimer *timer;
    CornerPage *corner = nullptr;
    QShortcut *stepKey = nullptr;
    std::array<QShortcut *, 2> confirmKeys{};
};
