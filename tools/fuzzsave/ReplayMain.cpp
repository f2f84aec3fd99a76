// orvane-save-replay [FOLDER...]
//
// Replays damaged saves against the world of a new game: cut, flipped and overlong copies of a
// save of that world and of a small world with a record of every kind, then every file of the
// given folders (a fuzzer's corpus, say). Each input must be refused with the running world left
// byte for byte as it was, or be taken whole as a world that saves and loads to the same bytes.
// It prints how many inputs were taken and refused, and each fault; a fault gives exit code 1.
// It must run where the game runs, beside the Resources tree.

#include "SaveReplay.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

namespace {

struct Input {
    QString name;
    QByteArray bytes;
};

QList<Input> named(const QString &what, const QList<QByteArray> &copies)
{
    QList<Input> inputs;
    for (int i = 0; i < copies.size(); ++i)
        inputs.append({QString("%1, copy %2").arg(what).arg(i), copies[i]});
    return inputs;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    if (!QDir(QStringLiteral("Resources/Defaults")).exists()) {
        QTextStream(stderr) << "no default world in ./Resources/Defaults: run the replay from the directory of "
                               "the game (build/bin)\n";
        return 2;
    }
    const WorldState start = SaveReplay::defaultWorld();
    QList<Input> inputs = named("the world of a new game", SaveReplay::damagedCopies(start.bytes(), 64, 40, 40, 1));
    inputs += named("a small world", SaveReplay::damagedCopies(SaveReplay::smallWorld().bytes(), 300, 100, 300, 2));
    for (const QString &folder : app.arguments().mid(1)) {
        const QStringList files = QDir(folder).entryList(QDir::Files, QDir::Name);
        for (const QString &file : files) {
            QFile input(QDir(folder).filePath(file));
            if (input.open(QIODevice::ReadOnly))
                inputs.append({input.fileName(), input.readAll()});
        }
    }

    const SaveReplay replay(start);
    int taken = 0;
    int faults = 0;
    for (const Input &input : std::as_const(inputs)) {
        const SaveReplay::Result result = replay.replay(input.bytes);
        taken += result.taken;
        if (!result.fault.isEmpty()) {
            ++faults;
            out << input.name << ": " << result.fault << '\n';
        }
    }
    out << inputs.size() << " damaged saves: " << taken << " taken, " << inputs.size() - taken << " refused, " << faults
        << " faults\n";
    return faults == 0 ? 0 : 1;
}
