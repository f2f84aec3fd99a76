#pragma once

#include <QDataStream>
#include <QString>

#include <functional>

// The one way in which the game reads and writes its data files: a version 12 stream over the
// whole file, with no header and no magic. A file is written through a temporary one that takes
// the name only when everything went well, so a failed write leaves the old file as it was.
class DataFile
{
public:
    // Hands a stream over the file to `read`. False when the file can't be opened or the stream
    // is no longer sound afterwards; what `read` took in is then not to be used.
    static bool read(const QString &path, const std::function<void(QDataStream &)> &read);
    // Hands a stream to `write`; the file takes its name if the stream stayed sound and the
    // whole file reached the disk. `reason` says why not.
    static bool write(const QString &path, const std::function<void(QDataStream &)> &write, QString *reason = nullptr);
};
