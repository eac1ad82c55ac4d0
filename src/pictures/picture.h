#pragma once

// Two kinds of pictures. A `Shape_Picture` paints a list of shapes that is made without the
// toolkit: profiles, plans and bars, which a report without a window writes as SVG from the same
// list. A `Plot_Picture` leaves its axes to the plotting library: depth map and velocity field for
// their thousands of cells and colour scale, the tidal curve because the window alone shows it. A
// new picture is a list of shapes unless each of its cells has a colour of its own: a map of areas
// between levels is a list too.

#include <QByteArray>
#include <QLabel>
#include <QString>
#include <QTimer>
#include <QWidget>

class QCPPainter;

namespace barvon {

/// Numbers shown as a picture: the base of all pictures. What it shows is its content, the widget
/// that `Plot_Picture` and `Shape_Picture` give it.
///
/// It is a widget of any size on a white ground, with "Save picture as PNG..." and "... SVG..." in
/// its context menu. Its accessible description holds the picture's numbers in words. Tab reaches
/// and leaves it, the menu key opens the menu; wheel and mouse buttons go to what is around it,
/// unless a picture takes them by its own promise.
class Picture : public QWidget {
  Q_OBJECT

 public:
  /// A quiet line below the picture that the screen adds; saved with it. Empty: none.
  void Set_Caption(const QString& caption);

  /// The picture as it stands, as the content of a file; empty when it cannot be drawn. The PNG
  /// has at least twice the pixels of the screen.
  QByteArray As_Png();
  virtual QByteArray As_Svg();

  /// What a pointer at this place reads, where the picture has something to tell.
  virtual QString Tip_At(const QPointF& place) = 0;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  /// Its note wraps, but a layout that asked the note for the height would squeeze the plot.
  bool hasHeightForWidth() const override { return false; }

 protected:
  /// `name` is the accessible name and the title of a saved picture, `file_name` what the save
  /// dialog offers, without extension. The picture owns `content`.
  Picture(const QString& name, const QString& file_name, QWidget* content, QWidget* parent);

  /// Brings the data to the content.
  virtual void Build() = 0;
  /// Draws the content as it is now, its corner at the painter's origin.
  virtual void Draw_Content(QCPPainter& painter) = 0;
  /// The letters of the content.
  virtual void Dress_Content(const QFont& font) = 0;
  /// The content is drawn again when the present event is done.
  virtual void Redraw_Content() = 0;

  /// The data has changed: the picture follows when the present event is done, once for many.
  void Data_Changed();
  /// Draws now what has changed.
  void Catch_Up();
  /// What the picture says of itself: the note below it and the accessible description.
  void Tell(const std::string& note, const std::string& description);

  QWidget* content() const { return content_; }
  /// The note and the line of the screen, as they are seen.
  QString Caption() const;
  /// Pixels that they take below the content, with the frame around it.
  int Caption_Height() const;

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

  QWidget* content_;
  QLabel* caption_;
  QString given_caption_, note_, file_name_;
  QTimer pending_;
  bool behind_ = false;  // data has changed since the last drawing
};

}  // namespace barvon
