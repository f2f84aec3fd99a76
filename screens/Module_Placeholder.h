#pragma once

#include <QWidget>

// Stands in for a screen of the game that is not built yet.
class Module_Placeholder : public QWidget
{
    Q_OBJECT

public:
    explicit Module_Placeholder(const QString &title, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
