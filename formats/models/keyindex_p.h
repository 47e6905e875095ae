#ifndef FORMATS_MODELS_KEYINDEX_P_H
#define FORMATS_MODELS_KEYINDEX_P_H

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

/*!
 * Finds by key what a linear search through rows would find, but in constant time.
 *
 * The values of a key are kept in row order, so the first value is the first match. Rows are added
 * at either end; after a row has changed its key or moved, sort() restores the order.
 */
template <typename Value>
class KeyIndex
{
public:
    [[nodiscard]] bool contains(const QString &key) const { return m_values.contains(key); }

    /*! The first value of the key; a default-constructed one (null) if the key has none. */
    [[nodiscard]] Value first(const QString &key) const { return m_values.value(key).first; }

    /*! Every value of the key, in order; empty if the key has none. */
    [[nodiscard]] QList<Value> all(const QString &key) const
    {
        const auto values = m_values.constFind(key);
        return values == m_values.constEnd() ? QList<Value>() : values->toList();
    }

    /*! Returns true if the key had no value before. */
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

    /*! Returns true if the key had no value before. */
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

    /*! Removes one entry of \a value; returns true if the key has no value left. */
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

    /*! Sorts the key's values into the order of \a rows. */
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
    // Nearly every key has a single value, which then needs no list.
    struct Values
    {
        Value first = Value();
        QList<Value> others;

        QList<Value> toList() const { return QList<Value>{first} + others; }
    };

    QHash<QString, Values> m_values;
};

#endif
