#include "host/presets/find/foldedwords.h"

#include <QtTest>

class TestFoldedWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spellingsOfAWordAreEqual_data();
    void spellingsOfAWordAreEqual();
    void textIsSplitIntoWords_data();
    void textIsSplitIntoWords();
};

void TestFoldedWords::spellingsOfAWordAreEqual_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("word");
    const auto row = [](const char *name, const char *text, const char *word) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(word);
    };
    row("case", "iPhone", "iphone");
    row("punctuation", "H.265", "h265");
    row("leading dot", ".mov", "mov");
    row("hyphen", "MPEG-2", "mpeg2");
    row("colon", "4:5", "45");
    row("composed accent", "música", "musica");
    row("combining accent", "mu\u0301sica", "musica");
    row("umlaut", "Hörbuch", "horbuch");
    row("sharp s", "groß", "gross");
    row("full width", "ｈ２６５", "h265");
    row("half width", "ﾃﾚﾋﾞ", "テレヒ");
    row("the same in full width", "テレビ", "テレヒ");
    row("times sign", "1920×1080", "1920x1080");
    row("outside the basic plane", "𝐇𝐃", "hd");
    row("Chinese", "无损", "无损");
    row("several words", "HEVC MP4", "hevcmp4");
    row("nothing but signs", "-.-", "");
}

void TestFoldedWords::spellingsOfAWordAreEqual()
{
    QFETCH(QString, text);
    QTEST(foldedWord(text), "word");
}

void TestFoldedWords::textIsSplitIntoWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("words");
    const auto row = [](const char *name, const char *text, const char *words) {
        QTest::newRow(name) << QString::fromUtf8(text)
                            << QString::fromUtf8(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    row("blanks", "  HD \t 1080P ", "hd 1080p");
    row("wide blank", "抖音　竖屏", "抖音 竖屏");
    row("slash", "h265/hevc", "h265 hevc");
    row("brackets", "MP4 (small)", "mp4 small");
    row("commas", "mp4,mkv、mov", "mp4 mkv mov");
    row("empty", "", "");
}

void TestFoldedWords::textIsSplitIntoWords()
{
    QFETCH(QString, text);
    QTEST(foldedWords(text), "words");
}

QTEST_GUILESS_MAIN(TestFoldedWords)
#include "tst_foldedwords.moc"
