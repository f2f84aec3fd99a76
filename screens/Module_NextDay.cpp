#include "screens/Module_NextDay.h"

#include "persistence/NameFiles.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"
#include "world/DayFlow.h"
#include "world/GameManager.h"

#include <QGridLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

Module_NextDay::Module_NextDay(QWidget *parent)
    : QWidget(parent)
    , grid(new QGridLayout(this))
    , inner(new QWidget)
    , progressBar(new QProgressBar)
    , proceedButton(new QPushButton("Proceed"))
    , news(new QTextEdit)
    , startTimer(new QTimer(this))
{
    inner->setMinimumSize(935, 595);
    auto *column = new QVBoxLayout(inner);
    column->addWidget(proceedButton);
    column->addWidget(progressBar);
    column->addWidget(news);
    grid->addWidget(inner, 1, 1, 2, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(3, 1);

    progressBar->setRange(0, 6);
    progressBar->setTextVisible(false);
    proceedButton->hide();
    news->setReadOnly(true);

    // the screen stands before the day is worked out
    startTimer->setInterval(100);
    connect(startTimer, &QTimer::timeout, this, &Module_NextDay::startNextDayFlow);
    startTimer->start();
}

void Module_NextDay::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

void Module_NextDay::startNextDayFlow()
{
    startTimer->stop();
    DayFlow day(
        GameManager::instance(), NameFiles::book(), [this](const QString &paragraph) { news->append(paragraph); },
        [this](int step) { progressBar->setValue(step); });
    day.run();
    proceedButton->setText("Proceed to next day");
    progressBar->hide();
    proceedButton->show();
    connect(proceedButton, &QPushButton::clicked, this, &Module_NextDay::backToProfile);
}

void Module_NextDay::backToProfile()
{
    ModuleManager::instance().showTopMenu();
    ModuleManager::instance().returnToCurrentScreen();
}
