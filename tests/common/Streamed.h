#pragma once

#include "fighters/StreamForm.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

// A record as a save writes it, and read back from such bytes.
template <typename Record> QByteArray streamed(const Record &record)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    out << record;
    return bytes;
}

template <typename Record> Record readBack(const QByteArray &bytes)
{
    QDataStream in(bytes);
    in.setVersion(StreamForm::version);
    Record record;
    in >> record;
    return record;
}
