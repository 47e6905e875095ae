#include "host/window/offer.h"

#include <utility>

void Offer::make(const QString &text, const QString &action, const std::function<void()> &act)
{
    m_text = text;
    m_action = action;
    m_act = act;
    Q_EMIT changed();
}

void Offer::take()
{
    const std::function<void()> act = std::exchange(m_act, nullptr);
    dismiss();
    if (act) {
        act();
    }
}

void Offer::dismiss()
{
    m_text.clear();
    m_action.clear();
    m_act = nullptr;
    Q_EMIT changed();
}
