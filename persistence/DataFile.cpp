#include "persistence/DataFile.h"

#include "fighters/StreamForm.h"

#include <QFile>
#include <QSaveFile>

bool DataFile::read(const QString &path, const std::function<void(QDataStream &)> &read)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QDataStream in(&file);
    in.setVersion(StreamForm::version);
    read(in);
    return in.status() == QDataStream::Ok;
}

bool DataFile::write(const QString &path, const std::function<void(QDataStream &)> &write, QString *reason)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        if (reason)
            *reason = file.errorString();
        return false;
    }
    QDataStream out(&file);
    out.setVersion(StreamForm::version);
    write(out);
    if (out.status() != QDataStream::Ok) {
        // the temporary file goes; the old file, if any, stays
        file.cancelWriting();
        file.commit();
        if (reason)
            *reason = QStringLiteral("The file could not be written whole.");
        return false;
    }
    if (!file.commit()) {
        if (reason)
            *reason = file.errorString();
        return false;
    }
    return true;
}
