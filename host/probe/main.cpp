// Answers one question after another about media files: what ffprobe would, without a new process
// for each file. A question is the allowed demuxers and the URL, each ended by a zero byte; the
// answer is a line, empty if the file can't be read. It ends when its standard input does.

#include "host/probe/mediareport.h"

extern "C" {
#include <libavutil/log.h>
}

#include <sys/resource.h>

#include <iostream>

namespace {

void limit(decltype(RLIMIT_AS) resource, rlim_t most)
{
    const rlimit both = {most, most};
    setrlimit(resource, &both);
}

/*! A hostile file may take over the code that reads it. */
void limitItself()
{
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_NOFILE, 32);
#ifndef __SANITIZE_ADDRESS__ // whose shadow is larger than that
    limit(RLIMIT_AS, rlim_t(4) << 30);
#endif
}

} // namespace

int main()
{
    limitItself();
    av_log_set_level(AV_LOG_QUIET);
    std::string demuxers;
    std::string url;
    while (std::getline(std::cin, demuxers, '\0') && std::getline(std::cin, url, '\0')) {
        std::cout << mediaReport(url, demuxers) << std::endl;
    }
    return 0;
}
