#include "screens/Module_UserEvents.h"

#include "screens/CornerPage.h"
#include "screens/GamePictures.h"
#include "screens/Module_PostEvent.h"
#include "screens/ScreenParts.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"
#include "shell/TopMenuBar.h"
#include "world/GameManager.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// the timer runs to the end of one match when it beats faster than this
constexpr int FastBeat = 10;

constexpr QSize PortraitSize(220, 352);
constexpr QSize LogoSize(75, 75);
constexpr QSize FlagSize(72, 45);

// the coloured strips above the names: the first man's corner is red, the second's blue
const QString cornerStrip = QStringLiteral(
    "QLabel\t { \tborder: 3px groove #885038; background-color: %1; \tfont-weight:bold; color:Black;\t }");
constexpr std::array<const char *, 2> stripColours{"#A43210", "#1032A4"};

QPixmap portraitOf(const Entity_Fighter &man)
{
    QStringList colours;
    QList<int> images;
    man.appearance(colours, images);
    return GamePictures::portrait(colours, images);
}

QLabel *centred(const QString &text = QString())
{
    auto *label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

Module_UserEvents::Module_UserEvents(const Entity_Event &event, QWidget *parent)
    : QWidget(parent)
    , screenLayout(new QVBoxLayout(this))
    , timer(new QTimer(this))
{
    ModuleManager::instance().hideTopMenu();
    screenLayout->setContentsMargins(10, 8, 10, 8);
    combatPanel = buildCombatPanel();
    screenLayout->addWidget(combatPanel);
    sink = std::make_unique<TextEditCommentary>(commentary);
    night = std::make_unique<FightNight>(GameManager::instance(), event, sink.get());
    fillCard();

    timerButton->hide();
    simToEndButton->hide();
    instructionBox->hide();
    connect(stepButton, &QPushButton::clicked, this, &Module_UserEvents::runStage);
    connect(timer, &QTimer::timeout, this, &Module_UserEvents::runStage);
    connect(timerButton, &QPushButton::clicked, this, &Module_UserEvents::timerButtonPressed);
    connect(simToEndButton, &QPushButton::clicked, this, &Module_UserEvents::simToEnd);
    connect(instructionBox, &QComboBox::activated, this, &Module_UserEvents::callInstruction);

    // the keys that players of such games expect: Space steps, Enter leaves the corner
    stepKey = new QShortcut(Qt::Key_Space, this);
    connect(stepKey, &QShortcut::activated, this, [this] {
        if (!corner && stepButton->isVisible())
            stepButton->click();
    });
    confirmKeys = {new QShortcut(Qt::Key_Return, this), new QShortcut(Qt::Key_Enter, this)};
    for (QShortcut *key : confirmKeys)
        connect(key, &QShortcut::activated, this, [this] {
            if (corner)
                stepButton->click();
        });
    setStage(&Module_UserEvents::startEvent);
}

Module_UserEvents::~Module_UserEvents()
{
    // the engine writes no more into the text box once the screen goes
    night.reset();
}

void Module_UserEvents::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

// --- the panels ------------------------------------------------------------------------------------

QWidget *Module_UserEvents::buildCombatPanel()
{
    auto *panel = new QWidget;
    panel->setObjectName("combatPanel");
    auto *grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(buildTopPanel(), 1, 1, 1, 7);

    instructionBox = new QComboBox;
    instructionBox->setObjectName("instructionBox");
    grid->addWidget(instructionBox, 3, 1, 1, 7);

    commentary = new QTextEdit;
    commentary->setObjectName("commentary");
    commentary->setReadOnly(true);
    grid->addWidget(commentary, 4, 1, 4, 7);

    for (int man = 0; man < 2; ++man) {
        portraits[man] = new QLabel;
        portraits[man]->setObjectName(man == 0 ? "portraitOne" : "portraitTwo");
        portraits[man]->setFixedSize(PortraitSize);
        portraits[man]->setScaledContents(true);
        portraits[man]->setPixmap(QPixmap("./Resources/Body/portraitbg.jpg"));
        grid->addWidget(portraits[man], 4, man == 0 ? 0 : 8, 4, 1, Qt::AlignTop);
    }

    tape = buildTaleOfTape();
    grid->addWidget(tape, 4, 2, 3, 5);
    tape->hide();

    grid->addWidget(buildBottomPanel(), 8, 0, 1, 9);
    // the commentary takes what height is left; the tale of the tape stands in its place and the
    // instruction box comes and goes without moving the rest
    grid->setRowMinimumHeight(2, 8);
    grid->setRowStretch(7, 1);
    for (QWidget *keepsItsPlace : {static_cast<QWidget *>(commentary), static_cast<QWidget *>(instructionBox)}) {
        QSizePolicy policy = keepsItsPlace->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        keepsItsPlace->setSizePolicy(policy);
    }
    return panel;
}

QWidget *Module_UserEvents::buildTopPanel()
{
    auto *top = new QWidget;
    auto *grid = new QGridLayout(top);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    logo = new QLabel;
    logo->setFixedSize(LogoSize);
    logo->setScaledContents(true);
    grid->addWidget(logo, 0, 0, 2, 1);
    eventName = centred();
    eventName->setObjectName("eventName");
    eventName->setProperty("heading", true);
    grid->addWidget(eventName, 0, 1);
    cardBox = new QComboBox;
    cardBox->setObjectName("cardBox");
    cardBox->setFocusPolicy(Qt::NoFocus);
    grid->addWidget(cardBox, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(10);
    return top;
}

QWidget *Module_UserEvents::buildBottomPanel()
{
    auto *bottom = new QWidget;
    bottomGrid = new QGridLayout(bottom);
    bottomGrid->setSpacing(0);
    bottomGrid->setContentsMargins(0, 6, 0, 0);
    for (int man = 0; man < 2; ++man) {
        auto *strip = new QLabel;
        strip->setStyleSheet(cornerStrip.arg(stripColours[man]));
        strip->setFixedHeight(14);
        bottomGrid->addWidget(strip, 0, man == 0 ? 0 : 5, 1, 4);
        flags[man] = new QLabel;
        flags[man]->setFixedSize(FlagSize);
        flags[man]->setScaledContents(true);
        bottomGrid->addWidget(flags[man], 1, man == 0 ? 0 : 8, 2, 1);
        names[man] = centred();
        names[man]->setObjectName(man == 0 ? "nameOne" : "nameTwo");
        names[man]->setProperty("heading", true);
        bottomGrid->addWidget(names[man], 1, man == 0 ? 1 : 5, 2, 3);
    }
    roundLabel = centred("Round 1");
    roundLabel->setObjectName("roundLabel");
    roundLabel->setMinimumWidth(110);
    bottomGrid->addWidget(roundLabel, 0, 4);
    clockLabel = centred("3:00");
    clockLabel->setObjectName("clockLabel");
    clockLabel->setProperty("heading", true);
    bottomGrid->addWidget(clockLabel, 1, 4, 2, 1);
    bottomGrid->setRowStretch(1, 1);

    timerButton = new QPushButton("Start Timer");
    stepButton = new QPushButton("Next Step");
    simToEndButton = new QPushButton("Sim to End");
    for (QPushButton *button : {timerButton, stepButton, simToEndButton}) {
        button->setMinimumHeight(34);
        button->setFocusPolicy(Qt::NoFocus);
    }
    bottomGrid->addWidget(timerButton, 3, 0, 1, 3);
    bottomGrid->addWidget(stepButton, 3, 3, 1, 3);
    bottomGrid->addWidget(simToEndButton, 3, 6, 1, 3);
    bottomGrid->setRowMinimumHeight(3, 44);
    return bottom;
}

QWidget *Module_UserEvents::buildTaleOfTape()
{
    QFrame *panel = ScreenParts::panel();
    panel->setObjectName("taleOfTape");
    auto *grid = new QGridLayout(panel);
    grid->setSpacing(0);
    grid->setContentsMargins(24, 14, 24, 18);
    QLabel *title = ScreenParts::heading("Tale of the Tape");
    title->setMinimumHeight(44);
    grid->addWidget(title, 0, 0, 1, 2);
    for (int man = 0; man < 2; ++man)
        for (int line = 0; line < int(tapeFields[man].size()); ++line) {
            tapeFields[man][line] = centred();
            tapeFields[man][line]->setObjectName("tapeLine");
            tapeFields[man][line]->setMinimumHeight(34);
            grid->addWidget(tapeFields[man][line], line + 1, man);
        }
    grid->setRowStretch(int(tapeFields[0].size()) + 1, 1);
    return panel;
}

// --- the stages ------------------------------------------------------------------------------------

void Module_UserEvents::runStage()
{
    if (stage)
        (this->*stage)();
}

bool Module_UserEvents::timerRunning() const
{
    return timer->isActive();
}

void Module_UserEvents::fillCard()
{
    const Entity_Event &event = night->event();
    logo->setPixmap(QPixmap("./Resources/Org Logos/" + event.organisationName() + "_Logo.jpg"));
    eventName->setText(event.name());
    const QSignalBlocker quiet(cardBox);
    cardBox->clear();
    cardBox->addItems(night->cardLines());
    // after the last match the card keeps showing the main event
    cardBox->setCurrentIndex(qMin(night->matchCursor(), cardBox->count() - 1));
}

void Module_UserEvents::fillInstructions()
{
    instructionBox->clear();
    instructionBox->addItems(night->instructions());
}

void Module_UserEvents::showNamesAndClock()
{
    names[0]->setText(night->fighterOne().fullName());
    names[1]->setText(night->fighterTwo().fullName());
    roundLabel->setText("Round " + QString::number(night->roundNumber()));
    clockLabel->setText(night->clockText());
}

void Module_UserEvents::startEvent()
{
    night->welcome();
    setStage(&Module_UserEvents::initializeNextMatch);
}

void Module_UserEvents::initializeNextMatch()
{
    if (!timerRunning()) {
        timerButton->hide();
        simToEndButton->hide();
    }
    if (!night->startNextMatch()) {
        concludeEvent();
        return;
    }
    fillCard();
    setStage(&Module_UserEvents::showTaleOfTape);
}

void Module_UserEvents::showTaleOfTape()
{
    timer->setInterval(TapeInterval);
    const std::array<const Entity_Fighter *, 2> men{&night->fighterOne(), &night->fighterTwo()};
    for (int man = 0; man < 2; ++man) {
        const QStringList lines = FightNight::tapeLines(*men[man]);
        for (int line = 0; line < int(tapeFields[man].size()); ++line)
            tapeFields[man][line]->setText(lines.value(line));
        portraits[man]->setPixmap(portraitOf(*men[man]));
        flags[man]->setPixmap(
            QPixmap("./Resources/Flags/flag_" + men[man]->text(Entity_Fighter::Nationality) + ".png"));
    }
    showNamesAndClock();
    commentary->hide();
    instructionBox->hide();
    tape->show();
    setStage(&Module_UserEvents::hideTaleOfTape);
}

void Module_UserEvents::hideTaleOfTape()
{
    timer->setInterval(StepInterval);
    tape->hide();
    commentary->clear();
    commentary->show();
    if (!timerRunning())
        timerButton->show();
    instructionBox->setVisible(night->isUserMatch());
    fillInstructions();
    setStage(&Module_UserEvents::beginNextRound);
}

void Module_UserEvents::beginNextRound()
{
    if (!timerRunning())
        simToEndButton->show();
    night->beginRound();
    instructionBox->setVisible(night->isUserMatch());
    fillInstructions();
    showNamesAndClock();
    setStage(&Module_UserEvents::stepMatch);
}

void Module_UserEvents::stepMatch()
{
    if (night->isMatchOver()) {
        endOfMatch();
        return;
    }
    const WholeMatch::Moment moment = night->step();
    if (moment == WholeMatch::Moment::Over) {
        endOfMatch();
        return;
    }
    fillInstructions();
    if (moment == WholeMatch::Moment::Fighting) {
        clockLabel->setText(night->clockText());
        return;
    }

    // the bell: the round and the clock of the next one
    showNamesAndClock();
    if (night->isUserMatch()) {
        if (timerRunning())
            stopTimer();
        simToEndButton->hide();
        timerButton->hide();
        stepButton->setText("Tend to Fighter");
        setStage(&Module_UserEvents::switchToCorner);
        return;
    }
    if (night->tallyDue())
        night->tally();
    else
        beginNextRound();
}

void Module_UserEvents::endOfMatch()
{
    const FightNight::MatchEnd next = night->endMatch();
    fillCard();
    if (next == FightNight::MatchEnd::ExtensionRound) {
        beginNextRound();
        return;
    }
    // nothing more to shout once the match is over
    instructionBox->hide();
    if (next == FightNight::MatchEnd::CardDone) {
        concludeEvent();
        return;
    }
    setStage(&Module_UserEvents::initializeNextMatch);
    // the run to the end covers one match
    if (timerRunning() && timer->interval() < FastBeat) {
        timer->stop();
        timerButton->show();
        stepButton->show();
        simToEndButton->hide();
    }
}

void Module_UserEvents::concludeEvent()
{
    night->conclude();
    timerButton->hide();
    simToEndButton->hide();
    setStage(&Module_UserEvents::showFighterSummary);
    stopTimer();
}

void Module_UserEvents::showFighterSummary()
{
    ModuleManager &shell = ModuleManager::instance();
    if (night->event().isFantasyMatch()) {
        // the two men of a fantasy night stand in the world only while it runs
        shell.showTopMenu();
        GameManager::instance().removeFantasyFighters();
        shell.changeModule(shell.screens().button(TopMenuBar::Profile));
        return;
    }
    shell.changeModule(
        new Module_PostEvent(night->userFighterStats(), night->userFighterId(), night->userCareerEntry()));
}

// --- the timer ---------------------------------------------------------------------------------------

void Module_UserEvents::timerButtonPressed()
{
    if (timerRunning())
        stopTimer();
    else
        simMatch();
}

void Module_UserEvents::simMatch()
{
    timer->setInterval(StepInterval);
    timerButton->setText("Stop Timer");
    stepButton->hide();
    simToEndButton->hide();
    timer->start();
}

void Module_UserEvents::stopTimer()
{
    timerButton->setText("Start Timer");
    stepButton->show();
    simToEndButton->setVisible(tape->isHidden() && !night->isMatchOver() && !corner);
    timer->stop();
}

void Module_UserEvents::simToEnd()
{
    timer->setInterval(SimToEndInterval);
    timerButton->hide();
    stepButton->hide();
    timer->start();
}

// --- the corner --------------------------------------------------------------------------------------

void Module_UserEvents::callInstruction()
{
    if (night->callInstruction(instructionBox->currentText()))
        fillInstructions();
}

void Module_UserEvents::switchToCorner()
{
    combatPanel->hide();
    screenLayout->removeWidget(combatPanel);
    if (corner) {
        putStepButtonBack();
        corner->deleteLater();
        corner = nullptr;
    }
    stepButton->setText("Back To Match");
    setStage(&Module_UserEvents::switchToMainCombat);
    corner = new CornerPage(*night, stepButton, this);
    screenLayout->addWidget(corner);
    corner->show();
    stepButton->setText("Begin Next Round");
}

void Module_UserEvents::putStepButtonBack()
{
    bottomGrid->addWidget(stepButton, 3, 3, 1, 3);
}

void Module_UserEvents::switchToMainCombat()
{
    if (corner) {
        night->tendFighter(corner->care(CornerPage::HealWounds), corner->care(CornerPage::ProvideWater),
                           corner->care(CornerPage::Motivate), corner->care(CornerPage::DiscussStrategy));
        corner->hide();
        screenLayout->removeWidget(corner);
        putStepButtonBack();
        corner->deleteLater();
        corner = nullptr;
    }
    screenLayout->addWidget(combatPanel);
    combatPanel->show();
    stepButton->setText("Next Step");
    setStage(&Module_UserEvents::stepMatch);
    showNamesAndClock();
    timerButton->show();
    simToEndButton->show();
    if (!night->tallyDue())
        beginNextRound();
    else
        night->tally();
}
