#include "tests/host/convert/conversiontest.h"
#include "tests/support/mediaclips.h"

/*! Where results go and what they are called. */
class TestConversionNames : public ConversionTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNameInUseIsNumbered();
    void overwritingReplacesTheResult();
    void aSourceIsNeverOverwritten();
    void filesToKeepAreNotOverwritten();
    void theResultMayGoElsewhere();
    void anyNameIsJustAName_data();
    void anyNameIsJustAName();
    void theResultHasTheUsualPermissions();
};

void TestConversionNames::aNameInUseIsNumbered()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    const QByteArray before = contentOf(source);
    const Outcome outcome = convert(job(source, video(QStringLiteral("mp4"))));
    QCOMPARE(outcome->target, path(QStringLiteral("clip (2).mp4")));
    QCOMPARE(convert(job(source, video(QStringLiteral("mp4")))).value().target,
             path(QStringLiteral("clip (3).mp4")));
    QCOMPARE(everything(), names("clip (2).mp4|clip (3).mp4|clip.mp4"));
    QCOMPARE(contentOf(source), before);
}

void TestConversionNames::overwritingReplacesTheResult()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    QVERIFY(!copyOf(QStringLiteral("cover.png"), QStringLiteral("clip.mkv")).isEmpty());
    ConversionJob overwriting = job(source, video(QStringLiteral("mkv")));
    overwriting.target.ifExists = OutputTarget::IfExists::Overwrite;
    const Outcome outcome = convert(overwriting);
    QCOMPARE(outcome->target, path(QStringLiteral("clip.mkv")));
    QCOMPARE(everything(), names("clip.mkv|clip.mp4"));
    QCOMPARE(MediaClips::factsOf(outcome->target).video()->codec, QStringLiteral("h264"));
}

void TestConversionNames::aSourceIsNeverOverwritten()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    const QByteArray before = contentOf(source);
    ConversionJob overwriting = job(source, video(QStringLiteral("mp4")));
    overwriting.target.ifExists = OutputTarget::IfExists::Overwrite;
    QCOMPARE(convert(overwriting).value().target, path(QStringLiteral("clip (2).mp4")));
    QCOMPARE(contentOf(source), before);

    // The source under another name is the source all the same.
    QVERIFY(QFile::link(source, path(QStringLiteral("link.avi"))));
    QVERIFY(QFile::link(source, path(QStringLiteral("link.mp4"))));
    overwriting.source = path(QStringLiteral("link.avi"));
    QCOMPARE(convert(overwriting).value().target, path(QStringLiteral("link (2).mp4")));
    QCOMPARE(contentOf(source), before);
}

void TestConversionNames::filesToKeepAreNotOverwritten()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    const QString kept = copyOf(QStringLiteral("silent.mp4"), QStringLiteral("clip.mkv"));
    const QByteArray before = contentOf(kept);
    ConversionJob overwriting = job(source, video(QStringLiteral("mkv")));
    overwriting.target.ifExists = OutputTarget::IfExists::Overwrite;
    overwriting.target.kept = std::make_shared<KeptFiles>();
    overwriting.target.kept->addFile(path(QStringLiteral("elsewhere")));
    overwriting.target.kept->addFile(kept);
    QCOMPARE(convert(overwriting).value().target, path(QStringLiteral("clip (2).mkv")));
    QCOMPARE(contentOf(kept), before);
}

void TestConversionNames::theResultMayGoElsewhere()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("out")));
    ConversionJob elsewhere = job(source, video(QStringLiteral("mp4")));
    elsewhere.target.folder = path(QStringLiteral("out"));
    QCOMPARE(convert(elsewhere).value().target, path(QStringLiteral("out/clip.mp4")));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversionNames::anyNameIsJustAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target");
    QTest::newRow("dash") << QStringLiteral("-y.mp4") << QStringLiteral("-y.mkv");
    QTest::newRow("pattern") << QStringLiteral("clip %03d.mp4") << QStringLiteral("clip %03d.mkv");
    QTest::newRow("protocol") << QStringLiteral("concat:a|b.mp4")
                              << QStringLiteral("concat:a|b.mkv");
    QTest::newRow("quotes") << QStringLiteral("it's \"x\" \\ $HOME.mp4")
                            << QStringLiteral("it's \"x\" \\ $HOME.mkv");
    QTest::newRow("other scripts")
        << QStringLiteral("видео 日本.mp4") << QStringLiteral("видео 日本.mkv");
    QTest::newRow("several dots") << QStringLiteral("my.holiday.mp4")
                                  << QStringLiteral("my.holiday.mkv");
    QTest::newRow("no extension") << QStringLiteral("clip") << QStringLiteral("clip.mkv");
    QTest::newRow("only an extension") << QStringLiteral(".mp4") << QStringLiteral(".mp4.mkv");
}

void TestConversionNames::anyNameIsJustAName()
{
    QFETCH(QString, name);
    QFETCH(QString, target);
    const QString source = copyOf(QStringLiteral("film.mp4"), name);
    QVERIFY(!source.isEmpty());
    const Outcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->target, path(target));
    QVERIFY(QFile::exists(path(target)));
}

void TestConversionNames::theResultHasTheUsualPermissions()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    QFile usual(path(QStringLiteral("usual")));
    QVERIFY(usual.open(QIODevice::WriteOnly));
    const Outcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(QFile::permissions(outcome->target), usual.permissions());
}

QTEST_GUILESS_MAIN(TestConversionNames)
#include "tst_conversion_names.moc"
