#include "host/media/probehelpers.h"

#include <QCoreApplication>
#include <QDir>

namespace {

/*! Beside the program or where it is installed; never on the PATH. */
QString helperProgram()
{
    const QDir here(QCoreApplication::applicationDirPath());
    const QString name = QStringLiteral("vexprobe");
    return here.filePath(here.exists(name) ? name : QStringLiteral(VEX_LIBEXEC_DIR "/") + name);
}

ProbeHelpers *ofApplication = nullptr;

/*! Processes can't be ended in good order once the application is gone. */
void endAll()
{
    delete ofApplication;
    ofApplication = nullptr;
}

} // namespace

ProbeHelpers &ProbeHelpers::shared()
{
    if (ofApplication == nullptr) {
        ofApplication = new ProbeHelpers(helperProgram());
        qAddPostRoutine(endAll);
    }
    return *ofApplication;
}

std::unique_ptr<ProbeHelper> ProbeHelpers::take()
{
    if (m_idle.empty()) {
        return std::make_unique<ProbeHelper>(m_program);
    }
    std::unique_ptr<ProbeHelper> helper = std::move(m_idle.back());
    m_idle.pop_back();
    return helper;
}
