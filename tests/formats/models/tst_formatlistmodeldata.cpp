#include "formats/models/formatlistmodeldata.h"
#include "tests/formats/models/presetsamples.h"

#include <QtTest>

class TestFormatListModelData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theThreeTextsAreEmptyAtFirst();
    void theMapHoldsTheThreeTexts();
    void aCopyIsIndependent();
};

void TestFormatListModelData::theThreeTextsAreEmptyAtFirst()
{
    const FormatListModelData format;
    const auto &[title, icon, tag] = format;
    QCOMPARE(title, QString());
    QCOMPARE(icon, QString());
    QCOMPARE(tag, QString());
    QCOMPARE(asLines(format.toVarMap()), asLines(QVariantMap{{QStringLiteral("title"), QString()},
                                                             {QStringLiteral("icon"), QString()},
                                                             {QStringLiteral("tag"), QString()}}));
}

void TestFormatListModelData::theMapHoldsTheThreeTexts()
{
    const FormatListModelData format{QStringLiteral("MP4"), QStringLiteral("mp4.png"),
                                     QStringLiteral("video")};
    QCOMPARE(asLines(format.toVarMap()),
             asLines(QVariantMap{{QStringLiteral("title"), QStringLiteral("MP4")},
                                 {QStringLiteral("icon"), QStringLiteral("mp4.png")},
                                 {QStringLiteral("tag"), QStringLiteral("video")}}));
}

void TestFormatListModelData::aCopyIsIndependent()
{
    const FormatListModelData format{QStringLiteral("MP4"), QStringLiteral("mp4.png"),
                                     QStringLiteral("video")};
    FormatListModelData copy = format;
    copy.title = QStringLiteral("AVI");
    QCOMPARE(format.title, QStringLiteral("MP4"));
    QCOMPARE(copy.icon, QStringLiteral("mp4.png"));
    QCOMPARE(copy.tag, QStringLiteral("video"));
}

QTEST_APPLESS_MAIN(TestFormatListModelData)
#include "tst_formatlistmodeldata.moc"
