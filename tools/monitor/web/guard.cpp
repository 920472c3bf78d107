#include "tools/monitor/web/guard.h"

#include <httplib.h>

#include "tools/monitor/web/token.h"

Guard::Guard(int port)
    : m_host("127.0.0.1:" + std::to_string(port)), m_origin("http://" + m_host), m_token(makeToken()) {}

bool Guard::admits(const httplib::Request &request) const {
    const std::string_view path = request.path;
    const size_t end = path.find('/', 1);
    if (end == std::string_view::npos || !isSameSecret(m_token, path.substr(1, end - 1))) return false;
    // Other host names that resolve to this address are rejected: foreign pages could use them for requests.
    if (request.get_header_value_count("Host") != 1 || request.get_header_value("Host") != m_host) return false;
    // Browsers send the origin with every request that changes something.
    const bool isForReading = request.method == "GET" || request.method == "HEAD";
    if (!request.has_header("Origin")) return isForReading;
    return request.get_header_value_count("Origin") == 1 && request.get_header_value("Origin") == m_origin;
}

void Guard::protect(httplib::Response &response) {
    response.set_header("Cache-Control", "no-store");
    response.set_header("Referrer-Policy", "no-referrer");
    response.set_header("X-Content-Type-Options", "nosniff");
    response.set_header("X-Frame-Options", "DENY");
    response.set_header("Cross-Origin-Opener-Policy", "same-origin");
    response.set_header("Cross-Origin-Resource-Policy", "same-origin");
    response.set_header("Content-Security-Policy", "default-src 'none'; frame-ancestors 'none'");
}

void Guard::allowOnly(httplib::Response &response, const std::string &nonce) {
    response.headers.erase("Content-Security-Policy");
    response.set_header("Content-Security-Policy",
                        "default-src 'none'; script-src 'nonce-" + nonce + "'; style-src 'nonce-" + nonce +
                            "'; connect-src 'self'; img-src data:; base-uri 'none'; form-action 'none'; "
                            "frame-ancestors 'none'; require-trusted-types-for 'script'; trusted-types 'none'");
}
