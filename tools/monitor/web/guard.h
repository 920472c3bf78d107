// Access control of the pages. The server listens on the loopback address only; a request may still come from another
// user of the machine or a foreign page in the user's own browser.
#pragma once

#include <string>

namespace httplib {
class Server;
struct Request;
struct Response;
} // namespace httplib

class Guard {
public:
    explicit Guard(int port);

    // "http://127.0.0.1:6310/TOKEN/"
    [[nodiscard]] std::string address() const { return m_origin + prefix(); }
    // The prefix of all page paths.
    [[nodiscard]] std::string prefix() const { return '/' + m_token + '/'; }
    // Whether the token is correct, the request names this host, and it does not come from a foreign page.
    [[nodiscard]] bool admits(const httplib::Request &request) const;
    // Headers for every response.
    static void protect(httplib::Response &response);
    // Allows only scripts and styles with the nonce, and nothing from other origins.
    static void allowOnly(httplib::Response &response, const std::string &nonce);

private:
    const std::string m_host, m_origin, m_token;
};
