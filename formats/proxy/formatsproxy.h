#ifndef FORMATS_PROXY_FORMATSPROXY_H
#define FORMATS_PROXY_FORMATSPROXY_H

#include "formats/formatsglobal.h"
#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/models/formatlistmodelproxy.h"

#include <QObject>
#include <QScopedPointer>

class FormatsProxyPrivate;

/*!
 * The output formats as the host and its QML scene see them.
 *
 * init() loads the catalogue and the user's two files, uninit() writes the files. The tag
 * "recently" names the recently-used list; a class is a format's title, such as "MP4". Preset maps
 * have the form of FormatDetailModelData::toVarMap(). Everything runs on the GUI thread. Nothing
 * throws: a lookup that finds nothing returns an empty map or string, false or -1.
 */
class VEX_FORMATS_EXPORT FormatsProxy : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList formatTags READ formatTags WRITE setFormatTags NOTIFY formatTagsChanged)
    Q_DISABLE_COPY(FormatsProxy)

public:
    /*! The instance of the process, created by the first call and destroyed at exit. */
    [[nodiscard]] static FormatsProxy *getInstance();

    /*! Registers the model types in the QML module "CVFormats" 1.0. */
    explicit FormatsProxy(QObject *parent = nullptr);
    /*! Saves nothing. */
    ~FormatsProxy() override;

    /*! Sets the tags and loads recently.json, the catalogue and formatCache.json, in this order. */
    void init(const QString &dir);
    /*! Writes recently.json and formatCache.json to the folder given to init(), if not empty. */
    void uninit();

    [[nodiscard]] QList<QVariant> formatTags() const;
    /*! Emits formatTagsChanged() if the list differs. */
    void setFormatTags(const QList<QVariant> &tags);

    [[nodiscard]] Q_INVOKABLE FormatListModelProxy *formatListModelProxy();
    [[nodiscard]] Q_INVOKABLE FormatListModel *formatListModel();
    /*! Sets the filter key of formatListModelProxy(). */
    Q_INVOKABLE void setFormatTag(const QString &tag);
    [[nodiscard]] Q_INVOKABLE FormatDetailModel *recentlyFormatsModel();

    /*!
     * Puts a copy of the preset, marked user-defined, at the head of the recently-used list, which
     * keeps one entry per id and drops the last entry when full. An unknown preset changes nothing
     * and is not a failure: returns true.
     */
    Q_INVOKABLE bool add2Recently(const QString &tagName, const QString &className,
                                  const QString &id);
    /*! Returns true if an entry was removed. */
    Q_INVOKABLE bool delFromRecently(const QString &id);

    /*!
     * Appends a user-defined copy of the class's preset \a id with the values of \a param: "title",
     * "videoEncoder", "videoFrameRate", "videoResolution", "videoBitrateLow", "videoBitrateMid",
     * "videoBitrateHigh", "audioEncoder", "audioSampleRate", "audioChannel" and "audioBitrate"; a
     * missing one counts as empty. Returns the new preset's id; empty if there is no such preset.
     */
    Q_INVOKABLE QString addUserDefineFormat(const QString &tagName, const QString &className,
                                            const QString &id, const QVariantMap &param);
    /*! Writes the same values into the preset itself; returns true for an unknown class. */
    Q_INVOKABLE bool changeUserDefineFormat(const QString &className, const QString &id,
                                            const QVariantMap &param);
    /*! Removes the preset from its class and from the recently-used list. */
    Q_INVOKABLE bool delUserDefineFormat(const QString &tagName, const QString &className,
                                         const QString &id);

    /*! The preset of the recently-used list or of the class; other tags are not checked. */
    [[nodiscard]] Q_INVOKABLE QVariantMap getFormat(const QString &tagName,
                                                    const QString &className,
                                                    const QString &id) const;
    /*! The catalogue's preset with this id. */
    [[nodiscard]] Q_INVOKABLE QVariantMap getFormat(const QString &id) const;
    /*! Whether the preset offers audio encoders and no video encoders. */
    [[nodiscard]] Q_INVOKABLE bool isAudioFormat(const QString &id) const;
    /*! Whether the preset offers both video and audio encoders. */
    [[nodiscard]] Q_INVOKABLE bool isVideoFormat(const QString &id) const;
    /*! Whether the preset's class supports several audio tracks. */
    [[nodiscard]] Q_INVOKABLE bool isSupportMultiTrack(const QString &id) const;
    [[nodiscard]] Q_INVOKABLE QString getTagName(const QString &id) const;
    /*! "tag" and "class" of the catalogue's preset with this id; empty if there is none. */
    [[nodiscard]] Q_INVOKABLE QVariantMap getTagAndClassById(const QString &id) const;
    [[nodiscard]] Q_INVOKABLE QString getClassIconById(const QString &id) const;
    /*! -1 for an empty tag or class, the tag "recently" and an unknown class. */
    [[nodiscard]] Q_INVOKABLE int getUserDefineCount(const QString &tagName,
                                                     const QString &className) const;
    [[nodiscard]] Q_INVOKABLE bool isFormatInRecently(const QString &id) const;

    /*! The audio bitrates (kbps) of the format's first preset, highest first; never empty. */
    [[nodiscard]] Q_INVOKABLE QVariantList getSupportAudioLisrfromType(const QString &type) const;
    /*! Whether \a format is a format tagged "video"; case-insensitive. */
    [[nodiscard]] Q_INVOKABLE bool isVideoType(const QString &format) const;

    /*! The format's preset with the audio bitrate (kbps) closest to \a bitrate. */
    [[nodiscard]] QMap<QString, QVariant> getFitAudioFormatByBitrate(const QString &formatTitle,
                                                                     const QString &bitrate) const;
    /*!
     * The format's preset with this title, case-insensitive. A positive \a bitrateCap (kbps) sets
     * its audio bitrate to the highest offered one within the cap, or "0" if all exceed it.
     */
    [[nodiscard]] QMap<QString, QVariant> getFitVideoFormatByName(const QString &formatTitle,
                                                                  const QString &presetTitle,
                                                                  const QString &bitrateCap) const;
    /*! Whether \a format is a format tagged "video" or "audio"; case-insensitive. */
    [[nodiscard]] bool getSupportFormat(const QString &format) const;
    /*!
     * The catalogue preset of \a format closest to \a target. For the type "video", the target is a
     * resolution such as "1280x720", compared by area; for "audio", a bitrate in kbps. With
     * \a preferSource, the first preset that keeps the source's own value wins. An unsupported
     * format becomes mp4 or mp3 with \a preferSource set.
     */
    [[nodiscard]] QMap<QString, QVariant> getConverterParameters(const QString &type,
                                                                 const QString &format,
                                                                 QVariant target,
                                                                 bool preferSource) const;

Q_SIGNALS:
    void formatTagsChanged();

private:
    const QScopedPointer<FormatsProxyPrivate> d;
};

#endif
