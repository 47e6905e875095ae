#include "host/window/sampletrial.h"

#include "host/window/toolfun.h"

void SampleTrial::start(ConversionJob job)
{
    stop();
    Result<WorkFolder> folder = WorkFolder::make();
    if (!folder) {
        Q_EMIT finished(failed(ToolFun::text(QStringLiteral("The temporary folder can’t be "
                                                            "written (%1); check the disk"))
                                   .arg(folder.error().text)));
        return;
    }
    m_folder.emplace(std::move(*folder));
    job.target = OutputTarget();
    job.target.folder = m_folder->path();
    job.sample = part;
    job.settings.targetBytes = 0;
    job.isLogged = false;
    m_conversion = std::make_unique<Conversion>(job);
    connect(m_conversion.get(), &Conversion::finished, this,
            [this](const Result<ConversionOutcome> &outcome) {
                m_conversion.release()->deleteLater();
                Q_EMIT finished(outcome);
            });
    m_conversion->start();
}

void SampleTrial::stop()
{
    m_conversion.reset();
}
