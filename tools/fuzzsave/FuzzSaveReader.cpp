// Feeds any bytes to the reader of saved games, each time against the world of a new game: a
// refused file must leave that world as it was; a taken one must save, and load again, to the
// very same bytes.

#include "SaveReplay.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <cstdlib>

namespace {

const SaveReplay *replay = nullptr;

} // namespace

// A corpus folder among the arguments is made when missing, and gets the small world as its first
// entry when it is empty. The world of a new game is read once, from ./Resources/Defaults.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    for (int i = 1; i < *argc; ++i) {
        const QString argument = QString::fromLocal8Bit((*argv)[i]);
        if (argument.startsWith('-') || QFileInfo(argument).isFile() || !QDir().mkpath(argument))
            continue;
        QDir folder(argument);
        if (!folder.isEmpty())
            continue;
        QFile seed(folder.filePath("small_world"));
        if (seed.open(QIODevice::WriteOnly))
            seed.write(SaveReplay::smallWorld().bytes());
    }
    static const SaveReplay fromTheDefaultWorld(SaveReplay::defaultWorld());
    replay = &fromTheDefaultWorld;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), qsizetype(size));
    if (!replay->replay(input).fault.isEmpty())
        abort();
    return 0;
}
