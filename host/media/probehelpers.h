#ifndef MEDIA_PROBEHELPERS_H
#define MEDIA_PROBEHELPERS_H

#include "host/media/probehelper.h"

#include <memory>
#include <vector>

/*! The processes of vexprobe that wait for questions. There are as many as were ever asked at the
 *  same time. */
class ProbeHelpers
{
    Q_DISABLE_COPY(ProbeHelpers)

public:
    explicit ProbeHelpers(const QString &program)
        : m_program(program)
    {}
    /*! Those of the whole application. They end with it. */
    [[nodiscard]] static ProbeHelpers &shared();

    [[nodiscard]] std::unique_ptr<ProbeHelper> take();
    /*! Without an open question. */
    void giveBack(std::unique_ptr<ProbeHelper> helper) { m_idle.push_back(std::move(helper)); }

private:
    const QString m_program;
    std::vector<std::unique_ptr<ProbeHelper>> m_idle;
};

#endif
