#pragma once

#include <QByteArray>
#include <QLabel>
#include <QString>
#include <QTimer>
#include <QWidget>

class QCustomPlot;

namespace barvon {

/// Numbers shown as a picture: the base of all pictures.
///
/// It is a widget of any size on a white ground, with "Save picture as PNG..." and "... SVG..." in
/// its context menu. Its accessible description holds the picture's numbers in words. Tab reaches
/// and leaves it, the menu key opens the menu; wheel and mouse buttons go to what is around it.
class Picture : public QWidget {
  Q_OBJECT

 public:
  ~Picture() override;

  /// A quiet line below the picture that the screen adds; saved with it. Empty: none.
  void Set_Caption(const QString& caption);

  /// The picture as it stands, as the content of a file; empty when it cannot be drawn. The PNG
  /// has at least twice the pixels of the screen.
  QByteArray As_Png();
  QByteArray As_Svg();

  /// What a pointer at this place reads, where the picture has something to tell.
  virtual QString Tip_At(const QPointF& place) = 0;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  /// Its note wraps, but a layout that asked the note for the height would squeeze the plot.
  bool hasHeightForWidth() const override { return false; }

 protected:
  /// `name` is the accessible name and the title of a saved picture, `file_name` what the save
  /// dialog offers, without extension.
  Picture(const QString& name, const QString& file_name, QWidget* parent);

  /// Brings the data to the plot.
  virtual void Build() = 0;
  /// Chooses labels and lengths for the plot's present size; runs before each drawing.
  virtual void Fit() = 0;

  /// The data has changed: the picture follows when the present event is done, once for many.
  void Data_Changed();
  /// Draws now what has changed.
  void Catch_Up();
  /// What the picture says of itself: the note below it and the accessible description.
  void Tell(const std::string& note, const std::string& description);

  QCustomPlot* plot() const { return plot_; }

  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Save(const char* kind, QByteArray (Picture::*content)());
  void Draw_On(QPaintDevice& device);
  void Show_Texts();
  void Take_Font();

  QCustomPlot* plot_;
  QLabel* caption_;
  QString given_caption_, note_, file_name_;
  QTimer pending_;
  bool behind_ = false;  // data has changed since the last drawing
};

}  // namespace barvon
