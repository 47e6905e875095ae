#include "host/convert/failurewords.h"

#include "host/convert/conversion.h"

#include <QRegularExpression>

QString failureInPlainWords(const QString &reason)
{
    struct Known
    {
        const char *pattern;
        QString words;
    };
    const Known reasons[] = {
        {"No such filter: '(zscale|tonemap)'",
         Conversion::tr("its video is HDR, and this ffmpeg can't map that to ordinary colours; "
                        "install an ffmpeg with zscale and tonemap")},
        {"unknown timestamp|pts and dts|missing PTS|monoton",
         Conversion::tr("the source doesn't say when its frames are shown")},
        {"codec tag|tag for codec|supported in|compatible|bitstream filter|write header",
         Conversion::tr("this kind of file can't hold one of the streams")},
        {"parameters such as|setting option|opening encoder|initializing output|layout|"
         "(^|[ '])-[a-z_:]+",
         Conversion::tr("the encoder refuses these settings")},
    };
    for (const Known &known : reasons) {
        const QRegularExpression pattern(QLatin1String(known.pattern),
                                         QRegularExpression::CaseInsensitiveOption);
        if (pattern.match(reason).hasMatch()) {
            return known.words;
        }
    }
    return reason;
}
