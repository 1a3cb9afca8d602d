#include "mcp/Http_Reply.h"

namespace {

QByteArray reasonOf(int status) {
  switch (status) {
  case 200:
    return "OK";
  case 202:
    return "Accepted";
  case 204:
    return "No Content";
  case 403:
    return "Forbidden";
  default:
    return "Not Found";
  }
}

} // namespace

QByteArray Http_Reply::write(int status, QByteArrayView body) {
  return "HTTP/1.1 " + QByteArray::number(status) + ' ' + reasonOf(status) +
         "\r\n"
         "Content-Type: application/json; charset=utf-8\r\n"
         "Access-Control-Allow-Origin: *\r\n"
         "Access-Control-Allow-Methods: POST, GET, OPTIONS\r\n"
         "Access-Control-Allow-Headers: Content-Type\r\n"
         "Content-Length: " +
         QByteArray::number(body.size()) +
         "\r\n"
         "Connection: close\r\n"
         "\r\n" +
         body.toByteArray();
}

QByteArray Http_Reply::streamHead() {
  return "HTTP/1.1 200 OK\r\n"
         "Content-Type: text/event-stream\r\n"
         "Cache-Control: no-cache\r\n"
         "Connection: keep-alive\r\n"
         "Access-Control-Allow-Origin: *\r\n"
         "Access-Control-Allow-Methods: GET, OPTIONS\r\n"
         "Access-Control-Allow-Headers: Content-Type\r\n"
         "\r\n";
}

QByteArray Http_Reply::event(QByteArrayView name, QByteArrayView data) {
  return "event: " + name.toByteArray() + "\r\ndata: " + data.toByteArray() + "\r\n\r\n";
}
