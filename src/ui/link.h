// The library's end of the connection to a GUI. Threads of the application only queue records; one thread of the link
// sends them and another executes the GUI's commands. Without a GUI, records are discarded and no thread runs.
//
// The link never reconnects: an application that starts before its GUI stays without it. Both threads are detached and
// end with the process, so that they use only objects that they own. They block every signal that can come from
// outside, including SIGPIPE: a GUI that disconnects never ends the application.
#pragma once

#include <cstdint>
#include <future>
#include <memory>

#include "ui/message_builders.h"
#include "ui/socket.h"
#include "ui/sync_queue.h"

// Copies refer to the same link.
class UiLink {
public:
    // Switches the render mode of all contexts, 1 for on and 0 for off. Called on a thread of the link, also while the
    // owner of the link is still under construction and while the process ends.
    using SetRenderMode = void (*)(uint8_t mode);

    // Connects, and starts the sender if there is a GUI. Throws std::system_error when the thread cannot start. A link
    // has no shutdown: its sender waits for records until the process ends.
    explicit UiLink(SetRenderMode setRenderMode);

    // Queues a copy and never waits for the GUI, so that one that does not read costs memory but no time. Any thread.
    void post(const ui::messages::Message &message) const;

    // True while a GUI is connected. Takes no lock. Any thread.
    [[nodiscard]] bool isAttached() const { return !m_client->failed() && m_client->isOpen(); }

private:
    using Queue = SyncQueue<ui::messages::Message>;

    static void senderThread(const std::shared_ptr<KZRIPC::Client> &client, const std::shared_ptr<Queue> &queue,
                             SetRenderMode setRenderMode);
    // Ready when the receiver has ended. Not valid if the thread cannot start; the client is closed then.
    static std::future<void> startReceiver(const std::shared_ptr<KZRIPC::Client> &client, SetRenderMode setRenderMode);
    static void receiverThread(const std::shared_ptr<KZRIPC::Client> &client, SetRenderMode setRenderMode);

    std::shared_ptr<KZRIPC::Client> m_client;
    std::shared_ptr<Queue> m_queue;
};
