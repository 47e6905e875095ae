#include "host/convert/piecesizes.h"

#include <QtTest>

/*! How the size of a film follows from pieces of it. */
class TestPieceSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFilmIsLikeItsPieces();
    void aPiecesFirstKeyFrameCountsOncePerInterval();
    void scenesBringKeyFramesOfTheirOwn();
    void theAudioCountsAllItsPackets();
    void audioThatIsMissingIsLikeTheRest();
    void whatFollowsAPieceDoesNotCount();
    void onePieceOfAllIsItsSize();
    void piecesThatDifferDoNotAgree();
    void aPieceWithoutPacketsTellsNothing();

private:
    // The container notes each packet in twelve more bytes, so that a packet of 88 takes 100.

    /*! A line per packet, which lasts half a second of video or one of audio; keys begin with "k":
     *  "k1000 50 50". */
    static QByteArray piece(const QByteArray &sizes, int stream = 0);
};

QByteArray TestPieceSizes::piece(const QByteArray &sizes, int stream)
{
    QByteArray lines = "#software: Lavf59\n#tb 0: 1/2\n#media_type 0: video\n#tb 1: 1/1\n"
                       "#media_type 1: audio\n";
    const QList<QByteArray> all = sizes.split(' ');
    for (int i = 0; i < all.size(); ++i) {
        const bool isKey = all.at(i).startsWith('k');
        lines += QByteArray::number(stream) + ",          0, " + QByteArray::number(i) +
                 ",        1,  " + (isKey ? all.at(i).mid(1) : all.at(i)) + ", 0x5051" +
                 (isKey || stream == 1 ? "\n" : ", F=0x0, S=1,        8\n");
    }
    return lines;
}

void TestPieceSizes::theFilmIsLikeItsPieces()
{
    PieceSizes sizes(1e9);
    sizes.add(piece("k5000 88 88"), 2);
    sizes.add(piece("k5000 288 288"), 2);
    QCOMPARE(sizes.count(), 2);
    QCOMPARE(sizes.bytes(100), 100 * (100.0 + 100 + 300 + 300) / 4 + 100 * 5012 / 1e9);
}

void TestPieceSizes::aPiecesFirstKeyFrameCountsOncePerInterval()
{
    PieceSizes sizes(10);
    sizes.add(piece("k988 88 88"), 2);
    QCOMPARE(sizes.bytes(100), 100 * 100.0 + 10 * 1000);
}

void TestPieceSizes::scenesBringKeyFramesOfTheirOwn()
{
    PieceSizes sizes(10);
    sizes.add(piece("k988 88 k788 88"), 2);
    // One every two seconds, so that the interval of ten never ends.
    QCOMPARE(sizes.bytes(100), 100 * (100.0 + 800 + 100) / 2);
}

void TestPieceSizes::theAudioCountsAllItsPackets()
{
    PieceSizes sizes(10);
    sizes.add(piece("188 188", 1), 2);
    QCOMPARE(sizes.bytes(10), 10 * 200.0);
}

void TestPieceSizes::audioThatIsMissingIsLikeTheRest()
{
    PieceSizes sizes(10);
    sizes.add(piece("188", 1), 2);
    QCOMPARE(sizes.bytes(10), 10 * 200.0);
}

void TestPieceSizes::whatFollowsAPieceDoesNotCount()
{
    PieceSizes sizes(1e9);
    sizes.add(piece("k500 88 88 5000 k5000"), 1.5);
    QCOMPARE(sizes.bytes(1.5), 200 + 512 * 1.5 / 1e9);
}

void TestPieceSizes::onePieceOfAllIsItsSize()
{
    PieceSizes sizes(10);
    sizes.add(piece("k988 88 k788 88") + piece("188 188", 1), 2);
    QCOMPARE(sizes.ownBytes(), 1000.0 + 100 + 800 + 100 + 200 + 200);
}

void TestPieceSizes::piecesThatDifferDoNotAgree()
{
    PieceSizes alike(10);
    PieceSizes different(10);
    for (const char *size : {"k100 100 100", "k100 105 105", "k100 98 99"}) {
        QVERIFY(!alike.agree() || alike.count() > 1);
        alike.add(piece(size), 2);
    }
    for (const char *size : {"k100 100 100", "k100 300 300", "k100 10 10"}) {
        different.add(piece(size), 2);
    }
    QVERIFY(alike.agree());
    QVERIFY(!different.agree());
}

void TestPieceSizes::aPieceWithoutPacketsTellsNothing()
{
    PieceSizes sizes(10);
    sizes.add("#software: Lavf59\n", 2);
    QCOMPARE(sizes.count(), 0);
    QCOMPARE(sizes.bytes(100), 0.0);
    QVERIFY(!sizes.agree());
}

QTEST_GUILESS_MAIN(TestPieceSizes)
#include "tst_piecesizes.moc"
