#pragma once

#include <QNetworkAccessManager>

#include "platform/http.h"

namespace platform::qt {

// Over Qt Network. Keeps no cookies and follows no redirect from https to http.
class QtHttp final : public Http {
 public:
  QtHttp();

  Task<Answer> Get(Request request) override;

 private:
  QNetworkAccessManager manager_;
};

}  // namespace platform::qt
