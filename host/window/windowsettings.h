#ifndef WINDOW_WINDOWSETTINGS_H
#define WINDOW_WINDOWSETTINGS_H

#include <QMap>
#include <QObject>
#include <QRect>
#include <QSettings>
#include <QString>

#include <optional>

enum class PageKind { Converter, Editor };

/*! The window's persistent settings; the library's screens call it "O_Setting". */
class WindowSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString converterGlobalId READ converterGlobalId WRITE setConverterGlobalId NOTIFY
                   converterGlobalIdChanged)
    Q_PROPERTY(QString editorGlobalId READ editorGlobalId WRITE setEditorGlobalId NOTIFY
                   editorGlobalIdChanged)
    Q_PROPERTY(ThemeChoice theme READ theme WRITE setTheme NOTIFY themeChanged)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    Q_PROPERTY(int jobs READ jobs WRITE setJobs NOTIFY jobsChanged)
    Q_PROPERTY(bool isNotifying READ isNotifying WRITE setNotifying NOTIFY notifyingChanged)
    Q_PROPERTY(bool isSampling READ isSampling WRITE setSampling NOTIFY samplingChanged)
    Q_PROPERTY(bool isStill READ isStill WRITE setStill NOTIFY stillChanged)

public:
    /*! What happens if a result's name is in use. */
    enum IfInUse {
        Rename, //!< the result gets " (2)", " (3)" ...
        Ask,
        Skip, //!< nothing is converted
        Overwrite
    };
    Q_ENUM(IfInUse)

    enum ThemeChoice { SystemTheme, LightTheme, DarkTheme };
    Q_ENUM(ThemeChoice)

    /*! \a path is the ini file. */
    explicit WindowSettings(const QString &path, QObject *parent = nullptr);

    /*! The page's preset, for tasks without one of their own. */
    QString globalId(PageKind page) const;
    void setGlobalId(PageKind page, const QString &id);
    /*! Takes the place of a preset that this catalogue lacks until another is chosen. Not kept, as
     *  the next start may find the preset. */
    void standIn(PageKind page, const QString &id) { m_standIns.insert(page, id); }

    /*! The preset chosen last of those for video, or of those for audio alone. */
    QString lastId(bool hasVideo) const;
    void setLastId(bool hasVideo, const QString &id);

    // The output of a page or, without one, of both pages: what is set for both replaces what the
    // pages had of their own.

    /*! The output folder; empty: beside each source. */
    QString folder(std::optional<PageKind> page) const;
    void setFolder(std::optional<PageKind> page, const QString &folder);
    /*! The names of the results, with nameFields(); empty: the source's. */
    QString nameTemplate(std::optional<PageKind> page) const;
    void setNameTemplate(std::optional<PageKind> page, const QString &nameTemplate);
    IfInUse ifInUse(std::optional<PageKind> page) const;
    void setIfInUse(std::optional<PageKind> page, IfInUse ifInUse);
    /*! Whether the output folder gets the subfolders of an added folder. */
    bool keepsTree(std::optional<PageKind> page) const;
    void setKeepsTree(std::optional<PageKind> page, bool keepsTree);

    ThemeChoice theme() const;
    void setTheme(ThemeChoice theme);
    /*! Whether nothing moves by itself, whatever the desktop says. */
    bool isStill() const;
    void setStill(bool isStill);

    /*! The code of the window's language; empty: the system's. */
    QString language() const;
    void setLanguage(const QString &language);
    /*! How many files each page converts at a time; 0: as many as suit the machine. */
    int jobs() const;
    void setJobs(int jobs);
    /*! Whether the desktop tells when a run has ended. */
    bool isNotifying() const;
    void setNotifying(bool isNotifying);
    /*! Whether short samples of the files tell how large their results will be. */
    bool isSampling() const;
    void setSampling(bool isSampling);
    /*! The folder that files were last added from. */
    QString lastFolder() const;
    void setLastFolder(const QString &folder);
    /*! Where the window was, not maximised; null before the first time. */
    QRect place() const;
    bool isMaximised() const;
    void setPlace(const QRect &place, bool isMaximised);

    QString converterGlobalId() const { return globalId(PageKind::Converter); }
    void setConverterGlobalId(const QString &id) { setGlobalId(PageKind::Converter, id); }
    QString editorGlobalId() const { return globalId(PageKind::Editor); }
    void setEditorGlobalId(const QString &id) { setGlobalId(PageKind::Editor, id); }

Q_SIGNALS:
    void converterGlobalIdChanged();
    void editorGlobalIdChanged();
    /*! Of any page. */
    void outputChanged();
    void themeChanged();
    void stillChanged();
    void languageChanged();
    void jobsChanged();
    void notifyingChanged();
    void samplingChanged();

private:
    /*! A page without a value of its own has that of both. */
    QVariant output(std::optional<PageKind> page, const char *name) const;
    void setOutput(std::optional<PageKind> page, const char *name, const QVariant &value);
    void write(const QString &key, const QVariant &value);

    QSettings m_file;
    QMap<PageKind, QString> m_standIns;
};

#endif
