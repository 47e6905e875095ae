#include "host/convert/outputname.h"

#include "host/files/freename.h"
#include "host/files/pendingfile.h"

#include <QDir>
#include <QFileInfo>

using IfExists = OutputTarget::IfExists;

namespace {

const QLatin1String widthField("width");
const QLatin1String heightField("height");

} // namespace

QString baseNameOf(const QString &source)
{
    const QFileInfo file(source);
    const QString base = file.completeBaseName();
    return base.isEmpty() ? file.fileName() : base;
}

OutputTarget fixedOutput(const QString &path, OutputTarget::IfExists ifExists)
{
    const QFileInfo file(path);
    OutputTarget target;
    target.folder = file.absolutePath();
    target.makesFolder = true;
    target.name = NameTemplate::literal(file.completeBaseName());
    target.ifExists = ifExists;
    return target;
}

QStringList OutputName::pictureFields()
{
    return {widthField, heightField};
}

OutputName::OutputName(const QString &source, const OutputTarget &target, const QString &extension)
    : m_source(source)
    , m_target(target)
    , m_extension(extension)
    , m_name(target.name.isEmpty() ? NameTemplate::literal(baseNameOf(source)) : target.name)
{}

void OutputName::setPicture(const QSize &size)
{
    m_name.fill(widthField, QString::number(size.width()));
    m_name.fill(heightField, QString::number(size.height()));
}

QString OutputName::folder() const
{
    return m_target.folder.isEmpty() ? QFileInfo(m_source).absolutePath()
                                     : QFileInfo(m_target.folder).absoluteFilePath();
}

Result<> OutputName::choose()
{
    m_isSkipped = false;
    m_path = freeName(folder(), m_name.text(), m_extension,
                      [this](const QString &path) { return isUnfree(path); });
    if (m_target.kept) {
        m_target.kept->addName(m_path);
    }
    return isTaken(m_path) ? findInUse() : Result<>();
}

Result<> OutputName::publish(PendingFile &output)
{
    if (m_target.ifExists == IfExists::Rename) {
        return output.publish(m_name.text(), m_extension).map([this](const QString &path) {
            m_path = path;
        });
    }
    if (m_target.ifExists == IfExists::Overwrite) {
        return output.publishOver(m_path);
    }
    const Result<bool> published = output.publishNew(m_path);
    if (!published) {
        return failed(published);
    }
    return *published ? Result<>() : findInUse();
}

bool OutputName::isUnfree(const QString &path) const
{
    // A conversion that starts again may have its own name.
    const bool isOfAnother = path != m_path && m_target.kept && m_target.kept->contains(path);
    if (isOfAnother || isSameFile(path, m_source)) {
        return true;
    }
    switch (m_target.ifExists) {
    case IfExists::Rename:
        return isTaken(path);
    case IfExists::Overwrite:
        return isTaken(path) && !QFileInfo(path).isFile();
    case IfExists::Skip:
    case IfExists::Fail:
        break;
    }
    return false;
}

Result<> OutputName::findInUse()
{
    m_isSkipped = m_target.ifExists == IfExists::Skip;
    if (m_target.ifExists == IfExists::Fail) {
        return failed(tr("there is a file %1 already; remove it, or choose another name")
                          .arg(QDir::toNativeSeparators(m_path)));
    }
    return {};
}
