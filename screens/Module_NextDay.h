#pragma once

#include <QWidget>

class QGridLayout;
class QProgressBar;
class QPushButton;
class QTextEdit;
class QTimer;

// One showing is one game day: the screen stands first, then the day runs in one go and its news
// is printed for the user to read.
class Module_NextDay : public QWidget
{
    Q_OBJECT

public:
    explicit Module_NextDay(QWidget *parent = nullptr);

    QTextEdit *newsText() const { return news; }

public slots:
    void startNextDayFlow();
    void backToProfile();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QGridLayout *grid;
    QWidget *inner;
    QProgressBar *progressBar;
    QPushButton *proceedButton;
    QTextEdit *news;
    QTimer *startTimer;
};
