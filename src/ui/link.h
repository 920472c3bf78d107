// The library's end of the connection to a GUI. Threads of the application only queue records; a thread of the link
// sends them and another carries out what the GUI commands. Without a GUI the records vanish, and no thread runs.
//
// The link never connects again: an application that starts before its GUI stays without it. Both threads are detached
// and end with the process, so that they touch nothing but what they hold themselves. They block every signal that can
// come from outside, SIGPIPE among them: a GUI that goes away never ends the application.
#pragma once

#include <cstdint>
#include <future>
#include <memory>

#include "ui/message_builders.h"
#include "ui/socket.h"
#include "ui/sync_queue.h"

// Copies are the same link.
class UiLink {
public:
    // Switches the render mode of all contexts, 1 for on and 0 for off. Called on a thread of the link, also while the
    // owner of the link is still under construction and while the process ends.
    using SetRenderMode = void (*)(uint8_t mode);

    // Connects, and starts the sender where there is a GUI. Throws std::system_error when the thread cannot start.
    // Nothing shuts a link down: its sender waits for records until the process ends.
    explicit UiLink(SetRenderMode setRenderMode);

    // Queues a copy and waits for no GUI, so that one that does not read costs memory and no time. Any thread.
    void post(const ui::messages::Message &message) const;

    // True while there is a GUI at the other end. Takes no lock. Any thread.
    [[nodiscard]] bool isAttached() const { return !m_client->failed() && m_client->isOpen(); }

private:
    using Queue = SyncQueue<ui::messages::Message>;

    static void senderThread(const std::shared_ptr<KZRIPC::Client> &client, const std::shared_ptr<Queue> &queue,
                             SetRenderMode setRenderMode);
    // Ready when the receiver has ended. Not valid when no thread can start; the client is closed then.
    static std::future<void> startReceiver(const std::shared_ptr<KZRIPC::Client> &client, SetRenderMode setRenderMode);
    static void receiverThread(const std::shared_ptr<KZRIPC::Client> &client, SetRenderMode setRenderMode);

    std::shared_ptr<KZRIPC::Client> m_client;
    std::shared_ptr<Queue> m_queue;
};
