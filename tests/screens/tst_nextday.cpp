#include "screens/ScreenTestKit.h"
#include "world/WorldSamples.h"

#include "screens/Module_NextDay.h"
#include "screens/Module_SaveLoad.h"

#include <QTextEdit>
#include <QtTest>

using namespace ScreenTestKit;

namespace {

const QString Org = "Test FC";
const QDate Today(2011, 3, 1);

// a world whose only night is today's, the user's or the world's
bool loadWorld(bool userNightToday, int userNights = 1)
{
    WorldSamples::World w;
    w.currentDate = Today;
    QList<Entity_Event> calendar;
    for (int i = 0; i < userNights; ++i)
        calendar << WorldSamples::bookedEvent(WorldSamples::makeEvent("Night " + QString::number(i), Org, Today, {}),
                                              userNightToday);
    w.organisations.append(WorldSamples::organisation(Org, calendar, {}));
    return w.load();
}

Module_NextDay *dayScreen()
{
    return qobject_cast<Module_NextDay *>(ModuleManager::instance().currentModule());
}

} // namespace

class tst_NextDay : public ScreenTest
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(3); }

    // The button leads to the day, whose news stands once it is worked out; proceeding returns
    // to the screen last chosen on the top menu.
    void nextDayShowsTheNewsAndReturns()
    {
        QVERIFY(loadWorld(false));
        openFromMenu(TopMenuBar::SaveLoad);
        openFromMenu(TopMenuBar::NextDay);

        // the screen stands before the day runs
        QVERIFY(dayScreen() && !ModuleManager::instance().isTopMenuVisible() && !screenButton("Proceed to next day"));
        QCOMPARE(GameManager::instance().getCurrentDate(), Today);

        QTRY_VERIFY(screenButton("Proceed to next day"));
        const QString news = dayScreen()->newsText()->toPlainText();
        // what the news says, the day's own tests show
        QVERIFY2(news.startsWith("News for " + Today.toString(Qt::TextDate) + "\nGym Info: "), qPrintable(news));
        QCOMPARE(GameManager::instance().getCurrentDate(), Today.addDays(1));

        click("Proceed to next day");
        QVERIFY(qobject_cast<Module_SaveLoad *>(ModuleManager::instance().currentModule()) &&
                ModuleManager::instance().isTopMenuVisible());
    }

    // The user's unplayed nights of today come first, one after the other; the day waits for them.
    void userNightsComeFirst()
    {
        const int nights = 2;
        QVERIFY(loadWorld(true, nights));
        ModuleManager::instance().showTopMenu();
        for (int night = 0; night < nights; ++night) {
            ModuleManager::instance().startNextDay();
            QVERIFY(!dayScreen() && !ModuleManager::instance().isTopMenuVisible());
            // the fight night ends by storing its results, as its summary does
            GameManager::instance().storeEventResults({"fought"}, "Night " + QString::number(night), Org);
        }
        ModuleManager::instance().startNextDay();
        QVERIFY(dayScreen());
        QTRY_VERIFY(screenButton("Proceed to next day"));
        QCOMPARE(GameManager::instance().getCurrentDate(), Today.addDays(1));
    }
};

QTEST_MAIN(tst_NextDay)
#include "tst_nextday.moc"
