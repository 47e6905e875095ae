#include "host/files/nametemplate.h"

#include <QtTest>

class TestNameTemplate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAreFilledIn();
    void aValueIsNotReadAsATemplate();
    void aLiteralNameHasNoFields();
    void aSlashInAValueMakesNoFolder();
    void anInvalidTemplateIsRefused_data();
    void anInvalidTemplateIsRefused();

private:
    static Result<NameTemplate> read(const QString &text)
    {
        return NameTemplate::fromText(text, {QStringLiteral("name"), QStringLiteral("n")});
    }
};

void TestNameTemplate::fieldsAreFilledIn()
{
    NameTemplate name = read(QStringLiteral("{n} {name} {n}")).value();
    QVERIFY(!name.isComplete());
    name.fill(QStringLiteral("n"), QStringLiteral("07"));
    QCOMPARE(name.text(), QStringLiteral("07 {name} 07"));
    QVERIFY(!name.isComplete());
    name.fill(QStringLiteral("name"), QStringLiteral("clip"));
    QCOMPARE(name.text(), QStringLiteral("07 clip 07"));
    QVERIFY(name.isComplete());
}

void TestNameTemplate::aValueIsNotReadAsATemplate()
{
    NameTemplate name = read(QStringLiteral("{name}")).value();
    name.fill(QStringLiteral("name"), QStringLiteral("{n}"));
    name.fill(QStringLiteral("n"), QStringLiteral("1"));
    QCOMPARE(name.text(), QStringLiteral("{n}"));
}

void TestNameTemplate::aLiteralNameHasNoFields()
{
    NameTemplate name = NameTemplate::literal(QStringLiteral("{name}"));
    name.fill(QStringLiteral("name"), QStringLiteral("clip"));
    QVERIFY(name.isComplete());
    QCOMPARE(name.text(), QStringLiteral("{name}"));
    QVERIFY(NameTemplate().isEmpty());
}

void TestNameTemplate::aSlashInAValueMakesNoFolder()
{
    NameTemplate name = read(QStringLiteral("{name}")).value();
    name.fill(QStringLiteral("name"), QStringLiteral("../clip"));
    QCOMPARE(name.text(), QStringLiteral(".._clip"));
}

void TestNameTemplate::anInvalidTemplateIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown field") << QStringLiteral("{name} {with}")
                                   << QStringLiteral("there is no field {with}; the fields are: "
                                                     "{name}, {n}");
    QTest::newRow("empty field") << QStringLiteral("{}")
                                 << QStringLiteral("there is no field {}; the fields are: {name}, "
                                                   "{n}");
    const QString noName = QStringLiteral("a name has at least one character and no \"/\"; choose "
                                          "the folder with --to");
    QTest::newRow("empty") << QString() << noName;
    QTest::newRow("folder") << QStringLiteral("a/{name}") << noName;
}

void TestNameTemplate::anInvalidTemplateIsRefused()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    const Result<NameTemplate> refused = read(text);
    QVERIFY(!refused);
    QCOMPARE(refused.error().text, reason);
}

QTEST_GUILESS_MAIN(TestNameTemplate)
#include "tst_nametemplate.moc"
