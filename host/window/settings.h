#ifndef WINDOW_SETTINGS_H
#define WINDOW_SETTINGS_H

#include <QObject>
#include <QSettings>
#include <QString>

enum class PageKind { Converter, Editor };

/*! What the window remembers from one start to the next; the QML files call it "O_Setting". */
class Settings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString converterGlobalId READ converterGlobalId WRITE setConverterGlobalId NOTIFY
                   converterGlobalIdChanged)
    Q_PROPERTY(QString editorGlobalId READ editorGlobalId WRITE setEditorGlobalId NOTIFY
                   editorGlobalIdChanged)

public:
    /*! The preset that a page starts with, and that stands in for one that is gone. */
    static QString defaultPreset() { return QStringLiteral("Video_MP4_001"); }

    /*! \a path is the ini file. */
    explicit Settings(const QString &path, QObject *parent = nullptr);

    QString globalId(PageKind page) const;
    void setGlobalId(PageKind page, const QString &id);
    /*! Where the page's results go; empty: beside their sources. */
    QString folder(PageKind page) const;
    void setFolder(PageKind page, const QString &folder);

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
