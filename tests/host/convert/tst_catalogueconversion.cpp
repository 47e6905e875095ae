#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"
#include "host/convert/conversion.h"
#include "tests/support/mediaclips.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>

Q_DECLARE_METATYPE(OutputSettings)

/*! Whatever can be chosen in the catalogue that is served, ffmpeg can write. */
class TestCatalogueConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyChoiceOfEncodersConverts_data();
    void everyChoiceOfEncodersConverts();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_source;
};

void TestCatalogueConversion::initTestCase()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_source = m_folder->filePath(QStringLiteral("source.mkv"));
    // Nothing in it can be copied into another file.
    QVERIFY(MediaClips::make(
        m_source, QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=0.4 "
                                 "-f lavfi -i sine=duration=0.4:sample_rate=22050 "
                                 "-c:v ffv1 -c:a tta")));
}

void TestCatalogueConversion::everyChoiceOfEncodersConverts_data()
{
    QTest::addColumn<OutputSettings>("settings");

    FormatsProxy &formats = *FormatsProxy::getInstance();
    formats.init(QString());
    const FormatListModel &list = *formats.formatListModel();
    QVERIFY(list.rowCount() > 0);
    QSet<QString> known;
    for (int row = 0; row < list.rowCount(); ++row) {
        const QString title = list.getTitle(row);
        FormatDetailModelData record;
        QVERIFY(list.formatDetailModel(title)->getModelInfoByIndex(0, record));
        const QVariantList &videoCodecs = record.videoEncoders;
        const QVariantList &audioCodecs = record.audioEncoders;
        // Each codec once: the two lists side by side, the shorter one from its start again.
        for (int i = 0; i < std::max(videoCodecs.size(), audioCodecs.size()); ++i) {
            if (!videoCodecs.isEmpty()) {
                record.videoEncoder = videoCodecs.at(i % videoCodecs.size()).toString();
            }
            if (!audioCodecs.isEmpty()) {
                record.audioEncoder = audioCodecs.at(i % audioCodecs.size()).toString();
            }
            const OutputSettings settings = OutputSettings::fromPreset(record.toVarMap());
            const QString name =
                QStringLiteral("%1 %2 %3")
                    .arg(settings.extension, settings.videoCodec, settings.audioCodec);
            if (!known.contains(name)) {
                known.insert(name);
                QTest::newRow(qPrintable(name)) << settings;
            }
        }
    }
}

void TestCatalogueConversion::everyChoiceOfEncodersConverts()
{
    ConversionJob job;
    job.source = m_source;
    QFETCH(OutputSettings, settings);
    job.settings = settings;
    Conversion conversion(job);
    Result<ConversionOutcome> outcome;
    QEventLoop loop;
    connect(&conversion, &Conversion::finished, &loop,
            [&outcome, &loop](const Result<ConversionOutcome> &ended) {
                outcome = ended;
                loop.quit();
            });
    conversion.start();
    loop.exec();
    if (!outcome && outcome.error().kind == Error::EncoderMissing) {
        QSKIP(qPrintable(outcome.error().text));
    }
    QVERIFY2(outcome, outcome ? "" : qPrintable(outcome.error().text));
    QFile::remove(outcome->target);
    QCOMPARE(outcome->facts.video() != nullptr, settings.hasVideo);
    if (!settings.videoCodec.isEmpty()) {
        QCOMPARE(outcome->facts.video()->codec, settings.videoCodec);
    }
    if (!settings.audioCodec.isEmpty()) {
        QCOMPARE(outcome->facts.audio()->codec, settings.audioCodec);
    }
}

QTEST_GUILESS_MAIN(TestCatalogueConversion)
#include "tst_catalogueconversion.moc"
