#include "support/local_http_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

namespace mc::test {

namespace {

// A socket bound to 127.0.0.1 on a free port, and the port.
int BindLoopback(int& port) {
  int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd < 0) throw std::runtime_error("socket failed");
  sockaddr_in addr{};
  addr.sin_family = AF_INET;
  addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  addr.sin_port = 0;
  if (::bind(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) != 0) {
    ::close(fd);
    throw std::runtime_error("bind failed");
  }
  socklen_t len = sizeof addr;
  ::getsockname(fd, reinterpret_cast<sockaddr*>(&addr), &len);
  port = ntohs(addr.sin_port);
  return fd;
}

const char* Reason(int status) {
  switch (status) {
    case 200:
      return "OK";
    case 404:
      return "Not Found";
    default:
      return "Error";
  }
}

}  // namespace

LocalHttpServer::LocalHttpServer(std::vector<HttpResponse> responses)
    : responses_(std::move(responses)) {
  listener_ = BindLoopback(port_);
  ::listen(listener_, 8);
  thread_ = std::thread([this] { Serve(); });
}

LocalHttpServer::~LocalHttpServer() {
  stop_ = true;
  thread_.join();
  ::close(listener_);
}

std::string LocalHttpServer::Url(const std::string& path) const {
  return "http://127.0.0.1:" + std::to_string(port_) + path;
}

int LocalHttpServer::ClosedPort() {
  int port = 0;
  ::close(BindLoopback(port));
  return port;
}

void LocalHttpServer::Serve() {
  while (!stop_) {
    pollfd p{listener_, POLLIN, 0};
    if (::poll(&p, 1, 50) <= 0) continue;
    int client = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0) continue;
    // Read the request head (the tests send no body).
    std::string request;
    char buf[1024];
    while (request.find("\r\n\r\n") == std::string::npos) {
      pollfd c{client, POLLIN, 0};
      if (::poll(&c, 1, 2000) <= 0) break;
      ssize_t n = ::recv(client, buf, sizeof buf, 0);
      if (n <= 0) break;
      request.append(buf, static_cast<std::size_t>(n));
    }
    const int index = requests_++;
    const HttpResponse& r =
        responses_[std::min<std::size_t>(static_cast<std::size_t>(index), responses_.size() - 1)];
    std::string reply =
        "HTTP/1.0 " + std::to_string(r.status) + " " + Reason(r.status) +
        "\r\nContent-Type: text/plain\r\nContent-Length: " + std::to_string(r.body.size()) +
        "\r\nConnection: close\r\n\r\n" + r.body;
    const char* at = reply.data();
    std::size_t left = reply.size();
    while (left > 0) {
      ssize_t n = ::send(client, at, left, MSG_NOSIGNAL);
      if (n <= 0) break;
      at += n;
      left -= static_cast<std::size_t>(n);
    }
    ::close(client);
  }
}

}  // namespace mc::test
