#pragma once

#include <QDataStream>
#include <QDate>
#include <QList>
#include <QMap>
#include <QMultiMap>
#include <QString>
#include <QStringList>

// The forms in which the game writes its records, exactly as a version 12 stream of the old Qt
// wrote them, and a reader that trusts no count it finds in a file.
//
// Qt's own readers reserve room for whatever count a file names; these read entry by entry, stop
// at the first failure, and mark the stream as corrupt when a record's fixed count is wrong. A
// caller reads a whole record into locals and looks at status() once at the end.
namespace StreamForm {

constexpr QDataStream::Version version = QDataStream::Version(12);

// marks the stream so that everything after this reads as nothing and the caller sees the fault
inline void markCorrupt(QDataStream &in)
{
    if (in.status() == QDataStream::Ok)
        in.setStatus(QDataStream::ReadCorruptData);
}

inline bool readCount(QDataStream &in, quint32 &count)
{
    in >> count;
    return in.status() == QDataStream::Ok;
}

template <typename T, typename ReadOne> void readList(QDataStream &in, QList<T> &list, ReadOne readOne)
{
    list.clear();
    quint32 count = 0;
    if (!readCount(in, count))
        return;
    for (quint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        T value{};
        readOne(in, value);
        if (in.status() == QDataStream::Ok)
            list.append(value);
    }
}

template <typename T> void readList(QDataStream &in, QList<T> &list)
{
    readList(in, list, [](QDataStream &s, T &value) { s >> value; });
}

// a list that the record's unpack needs at exactly `expected` entries
template <typename T> void readFixedList(QDataStream &in, QList<T> &list, int expected)
{
    readList(in, list);
    if (in.status() == QDataStream::Ok && list.size() != expected)
        markCorrupt(in);
}

template <typename T> void writeList(QDataStream &out, const QList<T> &list)
{
    out << quint32(list.size());
    for (const T &value : list)
        out << value;
}

// Maps go out from the last entry to the first; reading them back in that order with a
// multi-insert, which puts a new value before its equals, gives the original order again.
template <typename Map> void writeMap(QDataStream &out, const Map &map)
{
    out << quint32(map.size());
    auto it = map.constEnd();
    while (it != map.constBegin()) {
        --it;
        out << it.key() << it.value();
    }
}

template <typename K, typename V, typename ReadValue>
void readMultiMap(QDataStream &in, QMultiMap<K, V> &map, ReadValue readValue)
{
    map.clear();
    quint32 count = 0;
    if (!readCount(in, count))
        return;
    for (quint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        K key{};
        V value{};
        in >> key;
        readValue(in, value);
        if (in.status() == QDataStream::Ok)
            map.insert(key, value);
    }
}

template <typename K, typename V> void readMultiMap(QDataStream &in, QMultiMap<K, V> &map)
{
    readMultiMap(in, map, [](QDataStream &s, V &value) { s >> value; });
}

// a map with one value per key: a later equal key replaces, as the old reader's insert did
template <typename K, typename V> void readMap(QDataStream &in, QMap<K, V> &map)
{
    QMultiMap<K, V> all;
    readMultiMap(in, all);
    map.clear();
    for (auto it = all.constBegin(); it != all.constEnd(); ++it)
        map.insert(it.key(), it.value());
}

inline void writeStringList(QDataStream &out, const QStringList &list)
{
    writeList(out, static_cast<const QList<QString> &>(list));
}

inline void readStringList(QDataStream &in, QStringList &list)
{
    readList(in, static_cast<QList<QString> &>(list));
}

inline void readFixedStringList(QDataStream &in, QStringList &list, int expected)
{
    readFixedList(in, static_cast<QList<QString> &>(list), expected);
}

} // namespace StreamForm
