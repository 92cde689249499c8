// A picture of the bundle's resources, drawn for the density of the screen it is on. Interface
// files name it as the class "ui::PictureView" and give the picture's file in the property `file`.
#pragma once

#include <QWidget>

namespace ui {

class Pictures;

class PictureView final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString file MEMBER m_file)

  public:
    explicit PictureView(QWidget* parent = nullptr) : QWidget(parent) {}

    /// Shows the picture from now on; the view hides when there is none. `pictures` outlives it.
    void showFrom(Pictures& pictures);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString m_file;
    Pictures* m_pictures = nullptr;
};

} // namespace ui
