#pragma once

#include <QTranslator>

namespace bosquel {

/// Spanish for those texts of the toolkit's print and file dialogs that its own translation lacks. Where it
/// has nothing to say it leaves the word to the translators that were installed before it.
class Traductor final : public QTranslator {
  public:
    using QTranslator::QTranslator;

    QString translate(const char* contexto, const char* texto, const char* aclaracion,
                      int cuantos) const override;
    bool isEmpty() const override { return false; }
};

}  // namespace bosquel
