// The way back to the controller for threads that may outlive it.
#pragma once

#include <QMetaObject>
#include <QObject>
#include <mutex>
#include <utility>

namespace kelvane_app {

// Threads share this by pointer and post through it, never through the controller itself. Calls are
// queued to the receiver's thread until the receiver closes the mailbox in its destructor; Qt drops
// whatever is still queued when the receiver is destroyed.
class ControllerMailbox {
  public:
    explicit ControllerMailbox(QObject* receiver) : m_receiver(receiver) {}

    // Queues `call` to run on the receiver's thread, or drops it once the mailbox is closed.
    template <typename Call>
    void post(Call&& call) {
        const std::lock_guard lock(m_mutex);
        if (m_receiver) QMetaObject::invokeMethod(m_receiver, std::forward<Call>(call), Qt::QueuedConnection);
    }

    // Waits for a post under way, so that none starts once this returns.
    void close() {
        const std::lock_guard lock(m_mutex);
        m_receiver = nullptr;
    }

  private:
    std::mutex m_mutex;
    QObject* m_receiver;
};

}  // namespace kelvane_app
