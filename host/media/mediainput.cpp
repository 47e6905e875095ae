#include "host/media/mediainput.h"

#include "host/tools/toolcall.h"

#include <QCoreApplication>
#include <QMimeDatabase>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MediaInput)
};

/*!
 * Demuxers that are allowed because their files contain the media itself and describe its format.
 * Excluded are demuxers that follow names to other files or to the network, treat part of a file
 * name as a pattern, execute scripts or read text, and those of raw samples, whose rate nobody
 * knows. Names that the installed ffmpeg lacks do no harm.
 */
struct DemuxerKind
{
    const char *kind;
    std::initializer_list<const char *> names;
};

// clang-format off
const DemuxerKind mediaKinds[] = {
    {"video", {
        "asf", "asf_o", "avi", "dv", "flv", "gxf", "iamf", "ifv", "ivf", "ivr", "kux", "live_flv",
        "lvf", "lxf", "matroska", "mov", "mpeg", "mpegts", "mpjpeg", "mxf", "nsv", "nut", "nuv",
        "ogg", "pmp", "pva", "rm", "swf", "ty", "vividas", "vivo", "wtv", "yuv4mpegpipe"}},
    {"camera recordings", {
        "cine", "dhav", "iv8", "luodat", "msnwctcp", "mxg", "nc", "r3d", "ser"}},
    {"video of games and old players", {
        "3dostr", "4xm", "anm", "argo_brp", "argo_cvg", "avs", "bethsoftvid", "bfi", "bink", "bmv",
        "c93", "cdg", "cdxl", "dcstr", "derf", "dfa", "dsicin", "dxa", "ea", "ea_cdata",
        "film_cpk", "filmstrip", "flic", "frm", "gdv", "hnm", "idcin", "iff", "ipmovie", "ipu",
        "iss", "jv", "lmlm4", "mgsts", "mm", "mods", "moflex", "mtv", "mv", "mvi", "paf",
        "psxstr", "rl2", "roq", "rpl", "sga", "siff", "smjpeg", "smk", "smush", "sol", "thp",
        "tiertexseq", "tmv", "txd", "usm", "vc1test", "vmd", "wc3movie", "wsvqa", "xmv", "yop"}},
    {"video streams", {
        "apv", "av1", "avs2", "avs3", "cavsvideo", "dirac", "dnxhd", "evc", "h261", "h263", "h264",
        "hevc", "m4v", "mjpeg", "mjpeg_2000", "mpegvideo", "obu", "simbiosis_imx", "vc1", "vvc"}},
    {"audio", {
        "aa", "aac", "aax", "ac3", "ac4", "act", "aea", "aiff", "amr", "amrnb", "amrwb", "ape",
        "aptx", "aptx_hd", "au", "avr", "bit", "bonk", "caf", "codec2", "daud", "dsf", "dss",
        "dts", "dtshd", "eac3", "epaf", "flac", "g722", "g723_1", "g729", "gsm", "hcom", "ilbc",
        "ircam", "lc3", "libgme", "libmodplug", "libopenmpt", "loas", "mlp", "mmf", "mp3", "mpc",
        "mpc8", "nistsphere", "nsp", "oma", "osq", "pvf", "qcp", "qoa", "rka", "rso", "s337m",
        "sbc", "sds", "sdx", "shn", "sln", "sox", "spdif", "tak", "truehd", "tta", "voc", "vqf",
        "w64", "wav", "wsd", "wv", "wve", "xwma"}},
    {"audio of games", {
        "ace", "acm", "adp", "ads", "adx", "afc", "aix", "alp", "apc", "apm", "argo_asf", "ast",
        "bfstm", "binka", "boa", "brstm", "fsb", "fwse", "genh", "hca", "kvag", "laf", "mca",
        "msf", "mtaf", "musx", "pp_bnk", "redspark", "rsd", "scd", "sdns", "svag", "svs", "vag",
        "vpk", "wady", "wsaud", "xa", "xmd", "xvag"}},
    {"images", {
        "alias_pix", "apng", "bmp_pipe", "brender_pix", "cri_pipe", "dds_pipe", "dpx_pipe",
        "exr_pipe", "fits", "gem_pipe", "gif", "gif_pipe", "hdr_pipe", "ico", "j2k_pipe",
        "jpeg_pipe", "jpegls_pipe", "jpegxl_anim", "jpegxl_pipe", "msp", "pam_pipe", "pbm_pipe",
        "pcx_pipe", "pfm_pipe", "pgm_pipe", "pgmyuv_pipe", "pgx_pipe", "phm_pipe", "photocd_pipe",
        "pictor_pipe", "png_pipe", "ppm_pipe", "psd_pipe", "qdraw_pipe", "qoi_pipe", "sgi_pipe",
        "sunrast_pipe", "tiff_pipe", "vbn_pipe", "webp_pipe", "xbm_pipe", "xpm_pipe",
        "xwd_pipe"}},
};
// clang-format on

const QLatin1String sequenceDemuxer("image2");
const char *const playlistDemuxers[] = {"concat", "dash", "hls", "imf",
                                        "rtp",    "rtsp", "sdp", "webm_dash_manifest"};
const char *const playlistTypes[] = {"audio/x-mpegurl", "application/vnd.apple.mpegurl",
                                     "audio/x-scpls", "audio/x-ms-asx", "application/xspf+xml"};

template <typename Names>
bool contains(const Names &names, const QString &name)
{
    return std::any_of(std::begin(names), std::end(names),
                       [&name](const char *each) { return name == QLatin1String(each); });
}

/*! Characters that make the image demuxer treat a path as a pattern. */
const QRegularExpression &patternLetter()
{
    static const QRegularExpression letter(QStringLiteral("[%*?\\[\\]{}]"));
    return letter;
}

/*! Images that only the sequence demuxer reads. For other names it may open further files. */
bool isPlainImage(const QString &path)
{
    static const QRegularExpression form(QStringLiteral("\\.(jpg|jpeg|pam|tga)\\z"),
                                         QRegularExpression::CaseInsensitiveOption);
    return form.match(path).hasMatch() && !path.contains(patternLetter());
}

/*! The demuxer that ffprobe would have used if it were allowed; empty after any other error. */
QString refusedDemuxer(const QByteArray &errors)
{
    static const QRegularExpression refusal(
        QStringLiteral("^\\[(\\S+) @ [^\\]]*\\] Format not on whitelist"),
        QRegularExpression::MultilineOption);
    return refusal.match(QString::fromUtf8(errors)).captured(1);
}

} // namespace

QString demuxersFor(const QString &path)
{
    QStringList names;
    for (const DemuxerKind &kind : mediaKinds) {
        for (const char *name : kind.names) {
            names << QLatin1String(name);
        }
    }
    if (isPlainImage(fileArgument(path))) {
        names << sequenceDemuxer;
    }
    return names.join(QLatin1Char(','));
}

QStringList inputArguments(const QString &path, const QString &demuxers)
{
    return {QStringLiteral("-protocol_whitelist"),
            QStringLiteral("file"),
            QStringLiteral("-format_whitelist"),
            demuxers.isEmpty() ? demuxersFor(path) : demuxers,
            QStringLiteral("-i"),
            fileArgument(path)};
}

std::optional<QString> refusedKind(const QString &path, const QByteArray &errors)
{
    const QString demuxer = refusedDemuxer(errors);
    // ffprobe takes some playlists for lyrics, or doesn't recognize them.
    const bool isPlaylist =
        contains(playlistDemuxers, demuxer) ||
        contains(playlistTypes,
                 QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchContent).name());
    if (isPlaylist) {
        return Texts::tr("is a playlist; choose the files that it lists");
    }
    if (demuxer == sequenceDemuxer && fileArgument(path).contains(patternLetter())) {
        return Texts::tr("stands for an image sequence; rename it and its folders without any "
                         "of % * ? [ ] { }");
    }
    if (demuxer.isEmpty()) {
        return std::nullopt;
    }
    return Texts::tr("is of a kind that isn't converted (%1); choose a video or audio file")
        .arg(demuxer);
}
