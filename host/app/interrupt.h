#ifndef APP_INTERRUPT_H
#define APP_INTERRUPT_H

#include <QObject>

/*!
 * Turns Ctrl-C, the request to terminate and the end of the session into a signal of the event
 * loop. One at a time.
 */
class Interrupt : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Interrupt)

public:
    explicit Interrupt(QObject *parent = nullptr);
    /*! Restores what the signals did before. */
    ~Interrupt() override;

Q_SIGNALS:
    void caught();
};

#endif
