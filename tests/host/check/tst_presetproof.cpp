#include "host/check/presetproof.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QtTest>

/*! What the command's tests can't reach: a conversion that takes too long. */
class TestPresetProof : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aConversionThatTakesTooLongFails();
};

void TestPresetProof::aConversionThatTakesTooLongFails()
{
    const QTemporaryDir folder;
    QEventLoop loop;
    Result<ProofClip> clip;
    makeProofClip(QSize(320, 180), folder.path(), this,
                  [&clip, &loop](const Result<ProofClip> &made) {
                      clip = made;
                      loop.quit();
                  });
    loop.exec();
    QVERIFY(clip);
    QCOMPARE(clip->facts.video()->displaySize(), QSize(320, 180));

    OutputSettings settings;
    settings.extension = QStringLiteral("mkv");
    settings.hasVideo = true;
    PresetProof proof(settings, *clip);
    Result<> ended;
    connect(&proof, &PresetProof::finished, &loop, [&ended, &loop](const Result<> &outcome) {
        ended = outcome;
        loop.quit();
    });
    proof.start(1);
    loop.exec();
    QVERIFY(!ended);
    QCOMPARE(ended.error().kind, Error::Failed);
    QCOMPARE(ended.error().text, QStringLiteral("not finished after 0.001 s"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("clip-320x180.mkv")});
}

QTEST_GUILESS_MAIN(TestPresetProof)
#include "tst_presetproof.moc"
