#ifndef TESTS_FORMATS_MODELS_MODELOBSERVERS_H
#define TESTS_FORMATS_MODELS_MODELOBSERVERS_H

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QStringList>
#include <QtTest>

#include <climits>

/*! A list model whose rows have no children; the models' own rowCount() ignores the parent. */
class FlatView : public QIdentityProxyModel
{
public:
    explicit FlatView(QAbstractItemModel &model)
        : QIdentityProxyModel(&model)
    {
        setSourceModel(&model);
    }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : QIdentityProxyModel::rowCount();
    }

    int columnCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : QIdentityProxyModel::columnCount();
    }
};

/*!
 * Checks the item-model contract at every change of the model; a violation aborts. The tester would
 * take child rows for a tree, so it sees the model through a flat proxy.
 */
inline void guard(QAbstractItemModel &model)
{
    auto *view = new FlatView(model);
    new QAbstractItemModelTester(view, QAbstractItemModelTester::FailureReportingMode::Fatal, view);
}

/*!
 * Everything that a list model with a `count` emits: one line per signal, in order, with the number
 * of rows and the `count` at that moment.
 */
template <typename Model>
class SignalLog
{
    Q_DISABLE_COPY(SignalLog)

public:
    explicit SignalLog(const Model &model)
        : m_model(model)
    {
        logRows("rowsAboutToBeInserted", &Model::rowsAboutToBeInserted);
        logRows("rowsInserted", &Model::rowsInserted);
        logRows("rowsAboutToBeRemoved", &Model::rowsAboutToBeRemoved);
        logRows("rowsRemoved", &Model::rowsRemoved);
        logName("rowsAboutToBeMoved", &Model::rowsAboutToBeMoved);
        logName("rowsMoved", &Model::rowsMoved);
        logName("layoutAboutToBeChanged", &Model::layoutAboutToBeChanged);
        logName("layoutChanged", &Model::layoutChanged);
        logName("modelAboutToBeReset", &Model::modelAboutToBeReset);
        logName("modelReset", &Model::modelReset);
        QObject::connect(&model, &Model::countChanged, &m_context,
                         [this](int count) { log(QStringLiteral("countChanged %1").arg(count)); });
        QObject::connect(&model, &Model::dataChanged, &m_context,
                         [this](const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                const QVector<int> &roles) {
                             QStringList names;
                             for (const int role : roles) {
                                 names.append(
                                     QString::fromLatin1(m_model.roleNames().value(role, "?")));
                             }
                             log(QStringLiteral("dataChanged %1:%2 to %3:%4 roles %5")
                                     .arg(topLeft.row())
                                     .arg(topLeft.column())
                                     .arg(bottomRight.row())
                                     .arg(bottomRight.column())
                                     .arg(names.join(QLatin1Char(' '))));
                         });
    }

    [[nodiscard]] QStringList takeAll()
    {
        QStringList taken;
        taken.swap(m_lines);
        return taken;
    }

private:
    template <typename Signal>
    void logRows(const char *name, Signal signal)
    {
        QObject::connect(&m_model, signal, &m_context,
                         [this, name](const QModelIndex &parent, int first, int last) {
                             log(QStringLiteral("%1 %2-%3%4")
                                     .arg(QLatin1String(name))
                                     .arg(first)
                                     .arg(last)
                                     .arg(QLatin1String(parent.isValid() ? " below a row" : "")));
                         });
    }

    template <typename Signal>
    void logName(const char *name, Signal signal)
    {
        QObject::connect(&m_model, signal, &m_context, [this, name] { log(QLatin1String(name)); });
    }

    void log(const QString &what)
    {
        m_lines.append(QStringLiteral("%1; rows %2, count %3")
                           .arg(what)
                           .arg(m_model.rowCount())
                           .arg(m_model.count()));
    }

    const Model &m_model;
    QObject m_context;
    QStringList m_lines;
};

/*! Adds the column "row", with values outside a list of two rows. */
inline void addRowsOutsideTwo()
{
    QTest::addColumn<int>("row");
    QTest::newRow("negative") << -1;
    QTest::newRow("equal to the number of rows") << 2;
    QTest::newRow("past the end") << 3;
    QTest::newRow("lowest number") << INT_MIN;
    QTest::newRow("highest number") << INT_MAX;
}

/*! The methods that a class adds, in order, such as "signal void countChanged(int count)". */
inline QStringList ownMethods(const QMetaObject &meta)
{
    QStringList lines;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QStringList parameters;
        for (int p = 0; p < method.parameterCount(); ++p) {
            parameters.append(QString::fromLatin1(method.parameterTypes().at(p) + ' ' +
                                                  method.parameterNames().at(p)));
        }
        lines.append(
            QStringLiteral("%1 %2 %3(%4)")
                .arg(QLatin1String(method.methodType() == QMetaMethod::Signal ? "signal"
                                                                              : "invokable"),
                     QLatin1String(method.typeName()), QLatin1String(method.name()),
                     parameters.join(QStringLiteral(", "))));
    }
    return lines;
}

/*! The properties that it adds, in order, such as "int count, written, notify countChanged". */
inline QStringList ownProperties(const QMetaObject &meta)
{
    QStringList lines;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        lines.append(QStringLiteral("%1 %2%3, notify %4")
                         .arg(QLatin1String(property.typeName()), QLatin1String(property.name()),
                              QLatin1String(property.isWritable() ? ", written" : ""),
                              QLatin1String(property.notifySignal().name())));
    }
    return lines;
}

#endif
