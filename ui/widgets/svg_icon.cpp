#include "ui/widgets/svg_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include "ui/resources/icons.h"
#include "ui/widgets/painted_icon.h"

namespace {

class SvgEngine : public PaintedIcon {
 public:
  explicit SvgEngine(QByteArray svg) : m_svg(std::move(svg)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor color = QGuiApplication::palette().color(group, QPalette::ButtonText);
    QByteArray colored = m_svg;
    colored.replace("currentColor", color.name().toLatin1());
    QSvgRenderer(colored).render(painter, rect);
  }
  QIconEngine* clone() const override { return new SvgEngine(m_svg); }

 private:
  QByteArray m_svg;
};

}  // namespace

// A static library keeps its pictures only if somebody asks for them; the macro wants the global namespace.
static void loadPictures() { Q_INIT_RESOURCE(toolbar_icons); }

QIcon svgIcon(int number) {
  loadPictures();
  QFile file(QString(":/scribe/icons/%1.svg").arg(resources::icon_file(number)));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("svgIcon: a picture is missing");
  return QIcon(new SvgEngine(file.readAll()));
}
