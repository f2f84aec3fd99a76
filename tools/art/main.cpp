// orvane-art draws every picture of the game's Resources tree from the sources in data/art.
//   orvane-art --data DATA_DIR --flags FLAG_PICTURES --out RESOURCES_DIR
//   orvane-art --contact-sheet RESOURCES_DIR OUT.png [SEED]
// It needs no display: run it with QT_QPA_PLATFORM=offscreen.
#include "ArtOutput.h"
#include "BackgroundPainter.h"
#include "ContactSheet.h"
#include "EmblemPainter.h"
#include "FigureGeometry.h"
#include "FlagPainter.h"
#include "IconPainter.h"
#include "LogoPainter.h"
#include "Palette.h"
#include "PortraitPainter.h"
#include "WorldMapPainter.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <cstdio>

namespace {

int fail(const QString &message)
{
    std::fprintf(stderr, "orvane-art: %s\n", qPrintable(message));
    return 1;
}

QString argument(const QStringList &args, const QString &name)
{
    const qsizetype at = args.indexOf(name);
    return at >= 0 && at + 1 < args.size() ? args[at + 1] : QString();
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();

    const qsizetype sheetAt = args.indexOf("--contact-sheet");
    if (sheetAt >= 0) {
        if (sheetAt + 2 >= args.size())
            return fail("--contact-sheet needs the Resources folder and the picture to write");
        const int seed = sheetAt + 3 < args.size() ? args[sheetAt + 3].toInt() : 1;
        return ContactSheet::make(args[sheetAt + 1], args[sheetAt + 2], seed) ? 0 : 1;
    }

    const QString data = argument(args, "--data");
    const QString flags = argument(args, "--flags");
    const QString outDir = argument(args, "--out");
    if (data.isEmpty() || outDir.isEmpty())
        return fail("usage: orvane-art --data DATA_DIR --flags FLAG_PICTURES --out RESOURCES_DIR");

    QElapsedTimer clock;
    clock.start();
    QString error;
    Palette palette;
    if (!palette.read(data + "/art/palette.tsv", error))
        return fail(error);
    QList<Build> builds;
    if (!FigureGeometry::readBuilds(data + "/art/builds.tsv", builds, error))
        return fail(error);

    ArtOutput out(outDir);
    bool ok = PortraitPainter(palette, builds).drawAll(out);
    ok = EmblemPainter(palette).drawAll(out) && ok;
    ok = BackgroundPainter().drawAll(out) && ok;
    if (!FlagPainter(data, flags).drawAll(out, error))
        return fail(error);
    if (!IconPainter(data).drawAll(out, error))
        return fail(error);
    LogoPainter logos;
    if (!logos.read(data, error) || !logos.drawAll(out, error))
        return fail(error);
    WorldMapPainter world;
    if (!world.read(data, error))
        return fail(error);
    ok = world.drawAll(out) && ok;
    if (!ok)
        return fail("some pictures could not be drawn");

    for (auto it = out.countsPerFolder().cbegin(); it != out.countsPerFolder().cend(); ++it)
        std::printf("  %-16s %4d\n", qPrintable(it.key()), it.value());
    std::printf("orvane-art: %d pictures in %.1f s\n", out.total(), clock.elapsed() / 1000.0);
    return 0;
}
