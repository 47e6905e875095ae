#ifndef WINDOW_PAGEPROXIES_H
#define WINDOW_PAGEPROXIES_H

#include "host/window/framereader.h"
#include "host/window/page.h"

#include <QVariantMap>

/*! The converter page; the library's screens call it "O_ConverterProxy". */
class ConverterProxy : public Page
{
    Q_OBJECT

public:
    ConverterProxy(WindowSettings &settings, Presets &presets, QObject *parent = nullptr)
        : Page(PageKind::Converter, settings, presets, parent)
    {}

    Q_INVOKABLE void setConverterGlobalFormat(const QString &id) { setGlobalFormat(id); }
    Q_INVOKABLE void setConvertingListTaskFormat(int listId, const QString &id)
    {
        setTaskFormat(listId, id);
    }

    /*! Opens the dialog that edits the preset described by \a info. */
    Q_INVOKABLE void openConvertionParametersMsgBox(const QVariantMap &info)
    {
        Q_EMIT editingAsked(info);
    }
    /*! Opens the task's file in the editor, with its format. */
    Q_INVOKABLE void openInEditor(int taskId);
    /*! Opens a dialog that says info["showText"]. */
    Q_INVOKABLE void openSelectFormatMsgBox(const QVariantMap &info) { Q_EMIT messageAsked(info); }

Q_SIGNALS:
    void editingAsked(const QVariantMap &info);
    void messageAsked(const QVariantMap &info);
    void editorAsked(const QString &source, const QString &format);
    /*! The user created the preset \a id in the dialog. */
    void signalCreateNewFormatMsgClose(const QString &id);
};

/*! The editor page; the library's screens call it "O_EditorProxy". */
class EditorProxy : public Page
{
    Q_OBJECT

public:
    EditorProxy(WindowSettings &settings, Presets &presets, QObject *parent = nullptr);

    /*! Adds the file with a format of its own. */
    void addWithFormat(const QString &path, const QString &format);

    Q_INVOKABLE void setEditorGlobalFormat(const QString &id) { setGlobalFormat(id); }
    Q_INVOKABLE void setEditingListTaskFormat(int listId, const QString &id)
    {
        setTaskFormat(listId, id);
    }

    /*! Seconds of a clock text such as "1:02.5"; -1 for any other text. */
    Q_INVOKABLE double secondsOf(const QString &text) const;
    Q_INVOKABLE QString clockOf(double seconds) const;
    /*! Converts only the part between these seconds; an \a end of 0 means the file's end. */
    Q_INVOKABLE void cut(int taskId, double start, double end) { setCut(taskId, start, end); }
    /*! See FrameReader::frameSeconds(). */
    Q_INVOKABLE double frameSeconds(int taskId) const;
    /*! Asks for the picture at \a seconds; see FrameReader::request(). */
    Q_INVOKABLE void requestFrame(int taskId, double seconds);

Q_SIGNALS:
    /*! See FrameReader::ready(). */
    void frameReady(int taskId, double seconds, const QString &url);

private:
    FrameReader m_frames;
};

#endif
