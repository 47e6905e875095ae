#include "host/convert/outputname.h"
#include "host/files/pendingfile.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

using IfExists = OutputTarget::IfExists;

class TestOutputName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
        QVERIFY(writeFile(path("clip.mkv"), "source"));
    }
    void cleanup() { m_folder.reset(); }

    void aNameInUse_data();
    void aNameInUse();
    void theSourceIsNoEarlierResult();
    void anotherSourceIsNotReplaced();
    void aLinkToAnotherSourceIsNotReplaced();
    void eachResultOfARunHasItsOwnName();
    void aNameChosenTwiceIsTheSame();
    void aFolderInTheWayIsPassedBy();
    void aFileThatAppearsMeanwhileStays_data();
    void aFileThatAppearsMeanwhileStays();
    void thePictureIsFilledIn();

private:
    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    OutputName name(IfExists ifExists, const std::shared_ptr<KeptFiles> &kept = {},
                    const char *source = "clip.mkv", const char *extension = "mp4") const
    {
        OutputTarget target;
        target.ifExists = ifExists;
        target.kept = kept;
        return {path(source), target, QLatin1String(extension)};
    }
    /*! What publishing writes under the name; the error's text if it fails. */
    QString publishedAs(OutputName &name) const
    {
        PendingFile output;
        if (!output.create(m_folder->path()) || !writeFile(output.path(), "new")) {
            return QStringLiteral("nothing to publish");
        }
        const Result<> published = name.publish(output);
        return published ? QFileInfo(name.path()).fileName() : published.error().text;
    }

    std::optional<QTemporaryDir> m_folder;
};

Q_DECLARE_METATYPE(OutputTarget::IfExists)

void TestOutputName::aNameInUse_data()
{
    QTest::addColumn<IfExists>("ifExists");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<bool>("isSkipped");
    QTest::newRow("rename") << IfExists::Rename << QStringLiteral("clip (2).mp4") << false;
    QTest::newRow("skip") << IfExists::Skip << QStringLiteral("clip.mp4") << true;
    QTest::newRow("overwrite") << IfExists::Overwrite << QStringLiteral("clip.mp4") << false;
    QTest::newRow("fail") << IfExists::Fail << QString() << false;
}

void TestOutputName::aNameInUse()
{
    QFETCH(IfExists, ifExists);
    QFETCH(QString, chosen);
    QFETCH(bool, isSkipped);
    QVERIFY(writeFile(path("clip.mp4"), "old"));
    OutputName name = this->name(ifExists);
    const Result<> done = name.choose();
    if (chosen.isEmpty()) {
        QVERIFY(!done);
        QCOMPARE(done.error().text, QStringLiteral("there is a file %1 already; remove it, or "
                                                   "choose another name")
                                        .arg(path("clip.mp4")));
        return;
    }
    QVERIFY(done);
    QCOMPARE(QFileInfo(name.path()).fileName(), chosen);
    QCOMPARE(name.isSkipped(), isSkipped);
    if (!isSkipped) {
        QCOMPARE(publishedAs(name), chosen);
        QCOMPARE(contentOf(name.path()), QByteArray("new"));
    }
}

void TestOutputName::theSourceIsNoEarlierResult()
{
    for (const IfExists ifExists : {IfExists::Skip, IfExists::Overwrite, IfExists::Fail}) {
        OutputName name = this->name(ifExists, {}, "clip.mkv", "mkv");
        QVERIFY(name.choose());
        QCOMPARE(name.path(), path("clip (2).mkv"));
        QVERIFY(!name.isSkipped());
    }
}

void TestOutputName::anotherSourceIsNotReplaced()
{
    QVERIFY(writeFile(path("clip.mp4"), "another source"));
    const auto kept = std::make_shared<KeptFiles>();
    kept->addFile(path("clip.mp4"));
    OutputName name = this->name(IfExists::Overwrite, kept);
    QVERIFY(name.choose());
    QCOMPARE(name.path(), path("clip (2).mp4"));
}

void TestOutputName::aLinkToAnotherSourceIsNotReplaced()
{
    QVERIFY(writeFile(path("film.avi"), "another source"));
    QVERIFY(QFile::link(path("film.avi"), path("clip.mp4")));
    const auto kept = std::make_shared<KeptFiles>();
    kept->addFile(path("film.avi"));
    OutputName name = this->name(IfExists::Overwrite, kept);
    QVERIFY(name.choose());
    QCOMPARE(name.path(), path("clip (2).mp4"));
}

void TestOutputName::eachResultOfARunHasItsOwnName()
{
    QVERIFY(writeFile(path("clip.avi"), "another source"));
    for (const IfExists ifExists : {IfExists::Rename, IfExists::Skip, IfExists::Overwrite}) {
        const auto kept = std::make_shared<KeptFiles>();
        OutputName first = name(ifExists, kept);
        OutputName second = name(ifExists, kept, "clip.avi");
        QVERIFY(first.choose());
        QVERIFY(second.choose());
        QCOMPARE(first.path(), path("clip.mp4"));
        QCOMPARE(second.path(), path("clip (2).mp4"));
    }
}

void TestOutputName::aNameChosenTwiceIsTheSame()
{
    OutputName name = this->name(IfExists::Skip, std::make_shared<KeptFiles>());
    QVERIFY(name.choose());
    QVERIFY(name.choose());
    QCOMPARE(name.path(), path("clip.mp4"));
}

void TestOutputName::aFolderInTheWayIsPassedBy()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("clip.mp4")));
    OutputName name = this->name(IfExists::Overwrite);
    QVERIFY(name.choose());
    QCOMPARE(name.path(), path("clip (2).mp4"));
}

void TestOutputName::aFileThatAppearsMeanwhileStays_data()
{
    QTest::addColumn<IfExists>("ifExists");
    QTest::addColumn<QString>("published");
    QTest::newRow("rename") << IfExists::Rename << QStringLiteral("clip (2).mp4");
    QTest::newRow("skip") << IfExists::Skip << QStringLiteral("clip.mp4");
    QTest::newRow("fail") << IfExists::Fail << QString();
}

void TestOutputName::aFileThatAppearsMeanwhileStays()
{
    QFETCH(IfExists, ifExists);
    QFETCH(QString, published);
    OutputName name = this->name(ifExists);
    QVERIFY(name.choose());
    QVERIFY(!name.isSkipped());
    QVERIFY(writeFile(path("clip.mp4"), "of another process"));
    const QString outcome = publishedAs(name);
    if (published.isEmpty()) {
        QVERIFY2(outcome.startsWith(QStringLiteral("there is a file ")), qPrintable(outcome));
    } else {
        QCOMPARE(outcome, published);
    }
    QCOMPARE(name.isSkipped(), ifExists == IfExists::Skip);
    QCOMPARE(contentOf(path("clip.mp4")), QByteArray("of another process"));
}

void TestOutputName::thePictureIsFilledIn()
{
    OutputTarget target;
    target.name =
        NameTemplate::fromText(QStringLiteral("{width}x{height}"), OutputName::pictureFields())
            .value();
    OutputName name(path("clip.mkv"), target, QStringLiteral("mp4"));
    QVERIFY(!name.isComplete());
    name.setPicture({1280, 720});
    QVERIFY(name.isComplete());
    QVERIFY(name.choose());
    QCOMPARE(name.path(), path("1280x720.mp4"));
}

QTEST_GUILESS_MAIN(TestOutputName)
#include "tst_outputname.moc"
