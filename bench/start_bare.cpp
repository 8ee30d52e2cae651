// The measure for the start: a bare window with the bare text component and its HTML colours.

#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>

#include <QApplication>
#include <QFile>
#include <QMainWindow>

#include "FirstPaint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.setObjectName("bare");
  auto* pane = new QsciScintilla(&window);
  pane->setUtf8(true);
  pane->setLexer(new QsciLexerHTML(pane));
  QFile page(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
  if (page.open(QIODevice::ReadOnly)) pane->setText(QString::fromUtf8(page.readAll()));
  window.setCentralWidget(pane);
  window.resize(635, 514);
  const tagsmith::bench::EndAtFirstPaint end("bare");
  window.show();
  return QApplication::exec();
}
