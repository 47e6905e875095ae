#include "host/window/pageproxies.h"

#include "host/media/clocktext.h"

double EditorProxy::secondsOf(const QString &text) const
{
    return secondsFromClockText(text);
}

QString EditorProxy::clockOf(double seconds) const
{
    return exactClockText(seconds);
}
