#include "ui/link.h"

#include <csignal>
#include <system_error>
#include <thread>
#include <unistd.h>

#include "foundation/product.h"

using ui::messages::Message;

namespace {

constexpr uint32_t bits(int first, int last) {
    return ((1u << (last + 1)) - 1) & ~((1u << first) - 1);
}

// Bit numbers are record types. Queues may also hold types of the link itself or of the GUI.
constexpr uint32_t forwardedTypes =
    bits(ZV_WINDOW_TITLE, ZV_BACK_END_LISTS) | bits(ZV_SYSTEM_REPORT_GL_VERSION, ZV_SYSTEM_REPORT_END);
static_assert(forwardedTypes == 2082812);

bool isForwarded(uint32_t type) {
    return type <= ZV_SYSTEM_REPORT_END && (forwardedTypes >> type & 1);
}

// A signal handler on a thread of the link would interrupt its call, which counts as the end of the connection. Signals
// of faults are not blocked: they are handled on the thread that caused them.
void blockSignals() {
    sigset_t signals;
    sigfillset(&signals);
    for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGABRT, SIGSYS})
        sigdelset(&signals, fault);
    pthread_sigmask(SIG_SETMASK, &signals, nullptr);
}

} // namespace

UiLink::UiLink(SetRenderMode setRenderMode)
    : m_client(std::make_shared<KZRIPC::Client>(productName)), m_queue(std::make_shared<Queue>()) {
    if (isAttached()) std::thread(senderThread, m_client, m_queue, setRenderMode).detach();
}

void UiLink::post(const Message &message) const {
    // Without a GUI there is no sender, and the queue would grow.
    if (isAttached()) m_queue->push(message);
}

void UiLink::senderThread(const std::shared_ptr<KZRIPC::Client> &client, const std::shared_ptr<Queue> &queue,
                          SetRenderMode setRenderMode) {
    blockSignals();
    const auto send = [&](const Message &message) {
        if (client->isOpen()) client->send(&message, sizeof message);
    };
    send(ui::messages::processHello(getpid()));
    const auto receiverEnded = startReceiver(client, setRenderMode);
    Message message = queue->pop();
    for (; message.header.type != ZV_LINK_STOP; message = queue->pop()) {
        if (isForwarded(message.header.type)) send(message);
    }
    send(message);
    // Returns when the GUI closes the connection or sends ZV_GUI_DISCONNECT.
    if (receiverEnded.valid()) receiverEnded.wait();
}

std::future<void> UiLink::startReceiver(const std::shared_ptr<KZRIPC::Client> &client, SetRenderMode setRenderMode) {
    try {
        std::packaged_task<void()> receive([client, setRenderMode] { receiverThread(client, setRenderMode); });
        auto ended = receive.get_future();
        std::thread(std::move(receive)).detach();
        return ended;
    } catch (const std::system_error &) {
        // Without a receiver the end of the connection would not be noticed, so the connection is closed; the
        // application continues.
        client->close();
        return {};
    }
}

void UiLink::receiverThread(const std::shared_ptr<KZRIPC::Client> &client, SetRenderMode setRenderMode) {
    Message message{};
    while (client->isOpen()) {
        const int32_t received = client->receive(&message, sizeof message);
        // The buffer keeps the previous record's type at the end of the stream, so a GUI's last command is executed
        // again. A short block counts as a record; an unknown type is ignored.
        if (received <= 0) client->close();
        switch (message.header.type) {
        case ZV_GUI_DISCONNECT:
            client->close();
            return;
        case ZV_GUI_RENDER_MODE_ON:
            setRenderMode(1);
            break;
        case ZV_GUI_RENDER_MODE_OFF:
            setRenderMode(0);
            break;
        default:
            break;
        }
    }
}
