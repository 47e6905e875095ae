#include "host/presets/presetsettings.h"
#include "utility/cataloguesettings.h"

#include <QtTest>

#include <algorithm>

/*! The names and places of a preset's values. */
class TestPresetSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCataloguesDetailsAreKnown();
    void aDetailAcceptsOnlyItsValues_data();
    void aDetailAcceptsOnlyItsValues();
    void newValuesReadBack();
    void anAudioPresetHasNothingOfAPicture();
};

void TestPresetSettings::theCataloguesDetailsAreKnown()
{
    const QVector<PresetDetail> &details = presetDetails();
    for (const CatalogueDetail &inCatalogue : CatalogueDetail::all()) {
        const auto known =
            std::find_if(details.begin(), details.end(), [&inCatalogue](const PresetDetail &each) {
                return each.key == inCatalogue.key;
            });
        QVERIFY2(known != details.end(), inCatalogue.key.data());
        QCOMPARE(known->pattern, QString(inCatalogue.pattern));
    }
}

void TestPresetSettings::aDetailAcceptsOnlyItsValues_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isAccepted");
    const auto row = [](const char *name, const char *value, bool isAccepted) {
        QTest::addRow("%s %s", name, value)
            << QString::fromLatin1(name) << QString::fromLatin1(value) << isAccepted;
    };
    row("quality", "high", true);
    row("quality", "-2.5", true);
    row("quality", "100", false);
    row("quality", "nan", false);
    row("quality", "low", false);
    row("h264-level", "4.1", true);
    row("h264-level", "4.1\n", false);
    row("h264-speed", "slow", true);
    row("h264-speed", "slowest", false);
    row("av1-speed", "13", true);
    row("av1-speed", "14", false);
    row("peak-bitrate", "0", false);
}

void TestPresetSettings::aDetailAcceptsOnlyItsValues()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(bool, isAccepted);
    for (const PresetDetail &detail : presetDetails()) {
        if (detail.name == name) {
            QCOMPARE(detail.accepts(value), isAccepted);
            return;
        }
    }
    QFAIL("there is no such detail");
}

void TestPresetSettings::newValuesReadBack()
{
    const QVariantMap preset = {{QStringLiteral("video"), QVariantMap()},
                                {QStringLiteral("audio"), QVariantMap()}};
    PresetValues values;
    for (const QString &name : valueNames()) {
        values.insert(name, QStringLiteral("7"));
    }
    QCOMPARE(valuesOf(withValues(preset, values)), values);
}

void TestPresetSettings::anAudioPresetHasNothingOfAPicture()
{
    const QVariantMap preset = {{QStringLiteral("audio"), QVariantMap()}};
    QCOMPARE(QStringList(valuesOf(preset).keys()),
             (QStringList{QStringLiteral("audio-bitrate"), QStringLiteral("audio-encoder"),
                          QStringLiteral("channel"), QStringLiteral("sample-rate")}));
}

QTEST_GUILESS_MAIN(TestPresetSettings)
#include "tst_presetsettings.moc"
