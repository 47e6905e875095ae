#include "host/media/mediafiles.h"

#include <QFileInfo>

const QStringList &mediaExtensions()
{
    static const QStringList extensions =
        QStringLiteral(
            "3g2 3gp aac ac3 aif aifc aiff amr ape asf au avi awb caf divx dsf dts dv eac3 f4v "
            "flac flv gif m1v m2t m2ts m2v m4a m4b m4r m4v mka mkv mlp mov mp2 mp3 mp4 mpc mpe "
            "mpeg mpg mts mxf nut oga ogg ogm ogv opus qt ra rm rmvb spx tak thd ts tta vob voc "
            "w64 wav webm wma wmv wtv wv y4m")
            .split(QLatin1Char(' '));
    return extensions;
}

bool isMediaName(const QString &name)
{
    return mediaExtensions().contains(QFileInfo(name).suffix().toLower());
}
