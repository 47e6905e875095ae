#ifndef FORMATS_MODELS_KEYINDEX_P_H
#define FORMATS_MODELS_KEYINDEX_P_H

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

/*!
 * Finds by key what a walk over rows would find, at a cost that does not grow with the rows.
 *
 * The values of one key stand in the order of their rows, so that the first value is the first
 * match. Rows come at the end or at the head; after a row changed its key or its place, sort()
 * restores the order.
 */
template <typename Value>
class KeyIndex
{
public:
    [[nodiscard]] bool contains(const QString &key) const { return m_values.contains(key); }

    /*! The first value of the key; a default-constructed one (null) when the key has none. */
    [[nodiscard]] Value first(const QString &key) const { return m_values.value(key).first; }

    /*! Every value of the key, in order; empty when the key has none. */
    [[nodiscard]] QList<Value> all(const QString &key) const
    {
        const auto values = m_values.constFind(key);
        return values == m_values.constEnd() ? QList<Value>() : values->toList();
    }

    /*! True when the value is the key's first one. */
    bool append(const QString &key, const Value &value)
    {
        const auto values = m_values.find(key);
        if (values == m_values.end()) {
            m_values.insert(key, {value, {}});
            return true;
        }
        values->others.append(value);
        return false;
    }

    /*! True when the value is the key's first one. */
    bool prepend(const QString &key, const Value &value)
    {
        const auto values = m_values.find(key);
        if (values == m_values.end()) {
            m_values.insert(key, {value, {}});
            return true;
        }
        values->others.prepend(values->first);
        values->first = value;
        return false;
    }

    /*! Takes one entry of \a value out; true when it was the key's last one. */
    bool remove(const QString &key, const Value &value)
    {
        const auto values = m_values.find(key);
        if (values == m_values.end()) {
            return false;
        }
        if (values->first != value) {
            values->others.removeOne(value);
            return false;
        }
        if (!values->others.isEmpty()) {
            values->first = values->others.takeFirst();
            return false;
        }
        m_values.erase(values);
        return true;
    }

    /*! Puts the key's values into the order in which \a rows holds them. */
    template <typename Rows>
    void sort(const QString &key, const Rows &rows)
    {
        const auto values = m_values.find(key);
        if (values == m_values.end() || values->others.isEmpty()) {
            return;
        }
        const QList<Value> unsorted = values->toList();
        const QSet<Value> ofKey(unsorted.cbegin(), unsorted.cend());
        values->others.clear();
        for (const Value &row : rows) {
            if (ofKey.contains(row)) {
                values->others.append(row);
            }
        }
        values->first = values->others.takeFirst();
    }

private:
    // Nearly every key has one value, which needs no list.
    struct Values
    {
        Value first = Value();
        QList<Value> others;

        QList<Value> toList() const { return QList<Value>{first} + others; }
    };

    QHash<QString, Values> m_values;
};

#endif
