// A picture, drawn for the density of the screen it is on. Interface files name it as the class
// "ui::PictureView"; a picture of the bundle's resources that never changes stands in the property
// `file`, any other one an outlet brings.
#pragma once

#include <QWidget>

namespace ui {

class Pictures;

class PictureView final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString file MEMBER m_file)

  public:
    explicit PictureView(QWidget* parent = nullptr) : QWidget(parent) {}

    /// Shows the picture of the property from now on; the view hides when there is none.
    /// `pictures` outlives it.
    void showFrom(Pictures& pictures);

    using QWidget::show;
    /// Shows the picture `file`, in the resources or anywhere, or nothing where there is none.
    void show(const QString& file, Pictures& pictures);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString m_file;
    Pictures* m_pictures = nullptr;
};

} // namespace ui
