#include "host/window/pageproxies.h"

#include "host/window/clock.h"

double EditorProxy::secondsOf(const QString &text) const
{
    return Clock::secondsOf(text);
}

QString EditorProxy::clockOf(double seconds) const
{
    return Clock::textOf(seconds);
}
