#include "host/check/presetproof.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

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
    ProofClip clip;
    makeProofClip(QSize(320, 180), folder.path(), this,
                  [&clip, &loop](const ProofClip &made, const QString &) {
                      clip = made;
                      loop.quit();
                  });
    loop.exec();
    QCOMPARE(clip.facts.picture()->displaySize(), QSize(320, 180));

    OutputSettings settings;
    settings.extension = QStringLiteral("mkv");
    settings.hasPicture = true;
    PresetProof proof(settings, clip);
    std::optional<ProofOutcome> ended;
    connect(&proof, &PresetProof::finished, &loop, [&ended, &loop](const ProofOutcome &outcome) {
        ended = outcome;
        loop.quit();
    });
    proof.start(1);
    loop.exec();
    QCOMPARE(ended->result, ProofOutcome::Failed);
    QCOMPARE(ended->reason, QStringLiteral("not done after 0.001 s"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("clip-320x180.mkv")});
}

QTEST_GUILESS_MAIN(TestPresetProof)
#include "tst_presetproof.moc"
