#include "tests/formats/proxy/facadetest.h"

#include <QMetaMethod>

class TestFormatsProxyMetaObject : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void aMethodStandsAtItsIndex_data();
    void aMethodStandsAtItsIndex();
    void thereAreNoOtherMethods();
    void theOnlyPropertyIsTheTags();
    void theTagsAreReadWrittenAndAnnouncedThroughTheProperty();
};

void TestFormatsProxyMetaObject::aMethodStandsAtItsIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QList<QByteArray>>("parameters");

    auto row = [index = 0](const char *result, const char *signature,
                           const QList<QByteArray> &parameters) mutable {
        QTest::newRow(signature) << index++ << QByteArray(result) << QByteArray(signature)
                                 << parameters;
    };
    row("void", "formatTagsChanged()", {});
    row("FormatListModelProxy*", "formatListModelProxy()", {});
    row("FormatListModel*", "formatListModel()", {});
    row("void", "setFormatTag(QString)", {"tag"});
    row("FormatDetailModel*", "recentlyFormatsModel()", {});
    row("bool", "add2Recently(QString,QString,QString)", {"tagName", "className", "id"});
    row("bool", "delFromRecently(QString)", {"id"});
    row("QString", "addUserDefineFormat(QString,QString,QString,QVariantMap)",
        {"tagName", "className", "id", "param"});
    row("bool", "changeUserDefineFormat(QString,QString,QVariantMap)",
        {"className", "id", "param"});
    row("bool", "delUserDefineFormat(QString,QString,QString)", {"tagName", "className", "id"});
    row("QVariantMap", "getFormat(QString,QString,QString)", {"tagName", "className", "id"});
    row("QVariantMap", "getFormat(QString)", {"id"});
    row("bool", "isAudioFormat(QString)", {"id"});
    row("bool", "isVideoFormat(QString)", {"id"});
    row("bool", "isSupportMultiTrack(QString)", {"id"});
    row("QString", "getTagName(QString)", {"id"});
    row("QVariantMap", "getTagAndClassById(QString)", {"id"});
    row("QString", "getClassIconById(QString)", {"id"});
    row("int", "getUserDefineCount(QString,QString)", {"tagName", "className"});
    row("bool", "isFormatInRecently(QString)", {"id"});
    row("QVariantList", "getSupportAudioLisrfromType(QString)", {"type"});
    row("bool", "isVideoType(QString)", {"format"});
}

void TestFormatsProxyMetaObject::aMethodStandsAtItsIndex()
{
    QFETCH(const int, index);
    QFETCH(const QByteArray, result);
    QFETCH(const QByteArray, signature);
    QFETCH(const QList<QByteArray>, parameters);

    const QMetaObject &meta = FormatsProxy::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(QByteArray(method.typeName()), result);
    QCOMPARE(method.parameterNames(), parameters);
    QCOMPARE(method.methodType(), index == 0 ? QMetaMethod::Signal : QMetaMethod::Method);
    QCOMPARE(method.access(), QMetaMethod::Public);
}

// The four fitting operations are only for C++ and must not be visible from QML.
void TestFormatsProxyMetaObject::thereAreNoOtherMethods()
{
    const QMetaObject &meta = FormatsProxy::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 22);
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QByteArray name = meta.method(i).name();
        QVERIFY2(!name.startsWith("getFit") && name != "getSupportFormat" &&
                     name != "getConverterParameters",
                 name.constData());
    }
}

void TestFormatsProxyMetaObject::theOnlyPropertyIsTheTags()
{
    const QMetaObject &meta = FormatsProxy::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);
    const QMetaProperty tags = meta.property(meta.propertyOffset());
    QCOMPARE(QByteArray(tags.name()), QByteArray("formatTags"));
    QCOMPARE(QByteArray(tags.typeName()), QByteArray("QVariantList"));
    QVERIFY(tags.isReadable());
    QVERIFY(tags.isWritable());
    QVERIFY(!tags.isConstant());
    QCOMPARE(tags.notifySignalIndex(), meta.methodOffset());
    QCOMPARE(tags.notifySignal().methodSignature(), QByteArray("formatTagsChanged()"));
}

void TestFormatsProxyMetaObject::theTagsAreReadWrittenAndAnnouncedThroughTheProperty()
{
    const QVariantList tags{QStringLiteral("video"), QStringLiteral("audio")};
    QSignalSpy changed(&*m_facade, &FormatsProxy::formatTagsChanged);

    QVERIFY(m_facade->setProperty("formatTags", tags));
    QCOMPARE(m_facade->formatTags(), tags);
    QCOMPARE(m_facade->property("formatTags").toList(), tags);
    QCOMPARE(changed.count(), 1);

    QVERIFY(m_facade->setProperty("formatTags", tags));
    QCOMPARE(changed.count(), 1);
}

QTEST_GUILESS_MAIN(TestFormatsProxyMetaObject)
#include "tst_formatsproxy_metaobject.moc"
