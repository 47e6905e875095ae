#ifndef APP_INTERRUPT_H
#define APP_INTERRUPT_H

#include <QObject>

/*!
 * Turns SIGINT (Ctrl-C), SIGTERM and SIGHUP into a Qt signal. Only one instance can exist at a
 * time.
 */
class Interrupt : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Interrupt)

public:
    explicit Interrupt(QObject *parent = nullptr);
    /*! Restores the signals' default actions; ignored ones stay ignored. */
    ~Interrupt() override;

Q_SIGNALS:
    void caught();
};

#endif
