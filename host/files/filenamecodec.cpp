#include "host/files/filenamecodec.h"

#include <QFile>
#include <QTextCodec>

#include <algorithm>
#include <cstring>

namespace {

constexpr int escapeBase = 0xDC00;
constexpr int noCharacter = 0;
constexpr int cutOff = -1;

bool isEscape(QChar character)
{
    return character.unicode() >= escapeBase + 0x80 && character.unicode() <= escapeBase + 0xFF;
}

/*!
 * The number of bytes of the UTF-8 character at the start; noCharacter if there is none, or cutOff
 * if more bytes could complete one.
 */
int characterSize(const uchar *bytes, int available)
{
    const uchar first = bytes[0];
    if (first < 0x80) {
        return 1;
    }
    if (first < 0xC2 || first > 0xF4) {
        return noCharacter;
    }
    const int size = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    // The second byte reveals overlong forms, surrogates and values above U+10FFFF.
    const uchar lowestSecond = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const uchar highestSecond = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    for (int i = 1; i < std::min(size, available); ++i) {
        if (bytes[i] < (i == 1 ? lowestSecond : 0x80) ||
            bytes[i] > (i == 1 ? highestSecond : 0xBF)) {
            return noCharacter;
        }
    }
    return size <= available ? size : cutOff;
}

/*! UTF-8 in which each invalid byte has a code unit of its own. */
class FileNameCodec : public QTextCodec
{
public:
    QByteArray name() const override { return QByteArrayLiteral("x-vexconvert-file-names"); }
    int mibEnum() const override { return 0; }

protected:
    QString convertToUnicode(const char *bytes, int size, ConverterState *state) const override;
    QByteArray convertFromUnicode(const QChar *text, int size,
                                  ConverterState *state) const override;

private:
    const QTextCodec &m_utf8 = *codecForName("UTF-8");
};

QString FileNameCodec::convertToUnicode(const char *bytes, int size, ConverterState *state) const
{
    QByteArray all = QByteArray::fromRawData(bytes, size);
    if (state != nullptr && state->remainingChars > 0) {
        all.prepend(reinterpret_cast<const char *>(state->state_data), state->remainingChars);
        state->remainingChars = 0;
    }
    ConverterState valid(IgnoreHeader);
    QString text = m_utf8.toUnicode(all.constData(), all.size(), &valid);
    if (valid.invalidChars == 0 && valid.remainingChars == 0) {
        return text;
    }
    // Streams arrive in chunks. Qt lists folders with IgnoreHeader, passes whole names, and skips
    // names that seem to be incomplete.
    const bool isChunk = state != nullptr && !state->flags.testFlag(IgnoreHeader);
    text.clear();
    for (int i = 0; i < all.size();) {
        const char *rest = all.constData() + i;
        const int length = characterSize(reinterpret_cast<const uchar *>(rest), all.size() - i);
        if (length > 0) {
            ConverterState whole(IgnoreHeader);
            text += m_utf8.toUnicode(rest, length, &whole);
            i += length;
        } else if (length == cutOff && isChunk) {
            state->remainingChars = all.size() - i;
            std::memcpy(state->state_data, rest, size_t(state->remainingChars));
            break;
        } else {
            text += QChar(escapeBase + uchar(*rest));
            ++i;
        }
    }
    return text;
}

QByteArray FileNameCodec::convertFromUnicode(const QChar *text, int size,
                                             ConverterState *state) const
{
    QString all(text, size);
    if (state != nullptr && state->remainingChars > 0) {
        all.prepend(QChar(state->state_data[0]));
        state->remainingChars = 0;
    }
    ConverterState valid(IgnoreHeader);
    QByteArray bytes = m_utf8.fromUnicode(all.constData(), all.size(), &valid);
    if (valid.invalidChars == 0 && valid.remainingChars == 0) {
        return bytes;
    }
    bytes.clear();
    for (int i = 0; i < all.size();) {
        const bool isHigh = all.at(i).isHighSurrogate();
        const bool isLast = i + 1 == all.size();
        const int length = isHigh && !isLast && all.at(i + 1).isLowSurrogate() ? 2 : 1;
        if (length == 1 && isEscape(all.at(i))) {
            bytes += char(all.at(i).unicode() - escapeBase);
        } else if (isHigh && isLast && state != nullptr) {
            state->remainingChars = 1;
            state->state_data[0] = all.at(i).unicode();
        } else {
            ConverterState whole(IgnoreHeader);
            bytes += m_utf8.fromUnicode(all.constData() + i, length, &whole);
        }
        i += length;
    }
    return bytes;
}

} // namespace

void installFileNameCodec()
{
    // Qt owns its codecs.
    static QTextCodec *const codec = new FileNameCodec;
    QTextCodec::setCodecForLocale(codec);
}
