#ifndef WINDOW_WINDOWSETTINGS_H
#define WINDOW_WINDOWSETTINGS_H

#include <QObject>
#include <QSettings>
#include <QString>

enum class PageKind { Converter, Editor };

/*! The window's persistent settings; the library's screens call it "O_Setting". */
class WindowSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString converterGlobalId READ converterGlobalId WRITE setConverterGlobalId NOTIFY
                   converterGlobalIdChanged)
    Q_PROPERTY(QString editorGlobalId READ editorGlobalId WRITE setEditorGlobalId NOTIFY
                   editorGlobalIdChanged)

public:
    /*! \a path is the ini file. */
    explicit WindowSettings(const QString &path, QObject *parent = nullptr);

    /*! The page's preset, for tasks without one of their own. */
    QString globalId(PageKind page) const;
    void setGlobalId(PageKind page, const QString &id);
    /*! The page's output folder; empty: beside each source. */
    QString folder(PageKind page) const;
    void setFolder(PageKind page, const QString &folder);

    /*! The preset chosen last of those for video, or of those for audio alone. */
    QString lastId(bool hasVideo) const;
    void setLastId(bool hasVideo, const QString &id);

    QString converterGlobalId() const { return globalId(PageKind::Converter); }
    void setConverterGlobalId(const QString &id) { setGlobalId(PageKind::Converter, id); }
    QString editorGlobalId() const { return globalId(PageKind::Editor); }
    void setEditorGlobalId(const QString &id) { setGlobalId(PageKind::Editor, id); }

Q_SIGNALS:
    void converterGlobalIdChanged();
    void editorGlobalIdChanged();

private:
    QSettings m_file;
};

#endif
