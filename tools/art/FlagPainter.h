#pragma once

#include <QImage>
#include <QStringList>

class ArtOutput;

// The flags of the nations: the pictures of Debian's iso-flags-png-320x240, found by the ISO
// code that data/flags.tsv gives each nation, or, for the few that set has not (a code such as
// "draw:England"), our own drawing from data/art/flags/<name>.svg with the same rounded, lit
// look. Every nation of data/nations.tsv must have a row; a blank plate serves "blank".
class FlagPainter
{
public:
    FlagPainter(const QString &dataDir, const QString &flagDir);

    bool drawAll(ArtOutput &out, QString &error) const;

    static constexpr int width = 160;
    static constexpr int height = 100;

private:
    QImage plate(const QImage &source) const;
    QImage drawn(const QString &name, QString &error) const;

    QString dataDir;
    QString flagDir;
};
