// A tiny HTTP server on 127.0.0.1 for tests that fetch files: it answers each
// request with the next of its canned responses (the last one repeats).
#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace mc::test {

struct HttpResponse {
  int status = 200;
  std::string body;
};

class LocalHttpServer {
 public:
  explicit LocalHttpServer(std::vector<HttpResponse> responses);
  ~LocalHttpServer();
  LocalHttpServer(const LocalHttpServer&) = delete;
  LocalHttpServer& operator=(const LocalHttpServer&) = delete;

  int Port() const { return port_; }
  std::string Url(const std::string& path) const;
  // Requests answered so far.
  int Requests() const { return requests_; }

  // A port on 127.0.0.1 where nothing listens.
  static int ClosedPort();

 private:
  void Serve();

  std::vector<HttpResponse> responses_;
  int listener_ = -1;
  int port_ = 0;
  std::atomic<bool> stop_{false};
  std::atomic<int> requests_{0};
  std::thread thread_;
};

}  // namespace mc::test
