// Who may look at the pages. Only the loopback address is listened on; what comes from there may still be another user
// of the machine or a page of somebody else in the user's own browser.
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
    // What the paths of all pages begin with.
    [[nodiscard]] std::string prefix() const { return '/' + m_token + '/'; }
    // The token is right, the request was meant for this host, and it comes from no page of others.
    [[nodiscard]] bool admits(const httplib::Request &request) const;
    // Headers for every answer.
    static void protect(httplib::Response &response);
    // The page's scripts and styles are those that carry the nonce; nothing else is run or fetched from elsewhere.
    static void allowOnly(httplib::Response &response, const std::string &nonce);

private:
    const std::string m_host, m_origin, m_token;
};
