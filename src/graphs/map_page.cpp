#include "graphs/map_page.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>

#include "platform/qt/scrolled_part.h"
#include "results/drawings/result_words.h"

namespace barvon {
namespace {

constexpr int kPlayEvery = 600;  // milliseconds from picture to picture
constexpr int kMargin = 6;

QString Text(const std::string& text) { return QString::fromStdString(text); }

template <class Control>
Control* Named(Control* control, const char* name, const char* spoken) {
  control->setObjectName(QLatin1String(name));
  control->setAccessibleName(QLatin1String(spoken));
  return control;
}

// Long names may be cut: the list that opens shows them whole.
void May_Be_Narrow(QComboBox* box) {
  constexpr int kLeastLetters = 14;
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(kLeastLetters);
}

// Its scroll keys are keys of the times, also with the keyboard in the map.
class Scrolled_Map : public Scrolled_Part {
 public:
  using Scrolled_Part::Scrolled_Part;

 protected:
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

int Place_In(const std::vector<double>& values, double value) {
  const auto at = std::ranges::find(values, value);
  return at == values.end() ? -1 : static_cast<int>(at - values.begin());
}

}  // namespace

Map_Page::Map_Page(Map_Kind kind, const QString& name, QWidget* parent)
    : Graph_Page(parent),
      picture_(new Map_Picture(name, QStringLiteral("map"), this)),
      side_(Named(new QComboBox(this), "cboSide", "Show")),
      species_box_(Named(new QComboBox(this), "cboSpecies", "Species")),
      depth_(Named(new QComboBox(this), "cboDepth", "Depth")),
      colours_(Named(new QComboBox(this), "cboColours", "Colours")),
      steps_(Named(new QComboBox(this), "cboSteps", "Level steps")),
      side_label_(new QLabel(QStringLiteral("Sho&w:"), this)),
      depth_label_(new QLabel(QStringLiteral("&Depth:"), this)),
      time_words_(new QLabel(this)),
      largest_(new QCheckBox(QStringLiteral("&Largest over time"), this)),
      lines_(new QCheckBox(QStringLiteral("Contour l&ines"), this)),
      grid_(new QCheckBox(QStringLiteral("&Grid"), this)),
      remove_(new QPushButton(QStringLiteral("&Remove section"), this)),
      play_(new QPushButton(QStringLiteral("&Play"), this)),
      time_(Named(new QSlider(Qt::Horizontal, this), "Time", "Time")),
      own_part_(new QVBoxLayout) {
  view_.kind = kind;
  picture_->setObjectName(QStringLiteral("Map"));
  largest_->setObjectName(QStringLiteral("chkLargest"));
  lines_->setObjectName(QStringLiteral("chkLines"));
  grid_->setObjectName(QStringLiteral("chkGrid"));
  remove_->setObjectName(QStringLiteral("cmdRemoveSection"));
  play_->setObjectName(QStringLiteral("cmdPlay"));
  playing_.setObjectName(QStringLiteral("Playing"));
  playing_.setParent(this);
  playing_.setInterval(kPlayEvery);
  auto* right = new QVBoxLayout;
  right->setSpacing(kMargin);
  // Below its least height the map scrolls; what it is chosen by stays.
  auto* map = new Scrolled_Map(picture_, this);
  right->addWidget(map, 1);
  connect(picture_, &Map_Picture::Cross_Hair_Moved, map, [map](const QPointF& place) {
    const QPoint at = place.toPoint();
    map->ensureVisible(at.x(), at.y());
  });
  right->addWidget(Make_Time());
  auto* choices = new Scrolled_Part(Make_Choices(), this);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  row->setSpacing(kMargin);
  row->addWidget(choices);
  row->addLayout(right, 1);
  Connect_Choices();
  Set_Tab_Order({side_, species_box_, depth_, largest_, colours_, steps_, lines_, grid_, remove_,
                 picture_, play_, time_});
  const bool concentration = kind == Map_Kind::concentration;
  depth_label_->setVisible(concentration);
  depth_->setVisible(concentration);
  largest_->setVisible(concentration);
  Fill_Choices();
  Refresh();
}

QWidget* Map_Page::Make_Choices() {
  colours_->addItems({QStringLiteral("Same through time"), QStringLiteral("Fit each time")});
  steps_->addItems({QStringLiteral("Logarithmic"), QStringLiteral("Linear")});
  side_->addItems({QStringLiteral("This"), QStringLiteral("Other"), QStringLiteral("Difference")});
  auto* choices = new QWidget;
  auto* column = new QVBoxLayout(choices);
  column->setContentsMargins(0, 0, kMargin, 0);
  const auto add = [&](QLabel* label, QComboBox* box) {
    label->setBuddy(box);
    May_Be_Narrow(box);
    column->addWidget(label);
    column->addWidget(box);
  };
  add(side_label_, side_);
  add(new QLabel(QStringLiteral("&Species:"), choices), species_box_);
  add(depth_label_, depth_);
  column->addWidget(largest_);
  add(new QLabel(QStringLiteral("&Colours:"), choices), colours_);
  add(new QLabel(QStringLiteral("Level s&teps:"), choices), steps_);
  column->addWidget(lines_);
  column->addWidget(grid_);
  column->addLayout(own_part_);
  auto* hint =
      new QLabel(QStringLiteral("Draw a line over the map to see a section along it."), choices);
  hint->setObjectName(QStringLiteral("Hint"));
  hint->setWordWrap(true);
  column->addWidget(hint);
  column->addWidget(remove_);
  column->addStretch(1);
  return choices;
}

QWidget* Map_Page::Make_Time() {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(QStringLiteral("Ti&me:"), part);
  label->setBuddy(time_);
  time_->setPageStep(1);
  time_->setTickPosition(QSlider::TicksBelow);
  time_words_->setObjectName(QStringLiteral("TimeWords"));
  row->addWidget(play_);
  row->addWidget(label);
  row->addWidget(time_, 1);
  row->addWidget(time_words_);
  return part;
}

void Map_Page::Connect_Choices() {
  for (QComboBox* box : {side_, species_box_, depth_, colours_, steps_}) {
    connect(box, &QComboBox::currentIndexChanged, this, &Map_Page::Take_Choices);
  }
  for (QCheckBox* box : {largest_, lines_, grid_}) {
    connect(box, &QCheckBox::toggled, this, &Map_Page::Take_Choices);
  }
  connect(time_, &QSlider::valueChanged, this, &Map_Page::Take_Choices);
  // Who takes the slider wants to stay there.
  connect(time_, &QSlider::sliderPressed, this, &Map_Page::Stop);
  connect(play_, &QPushButton::clicked, this, &Map_Page::Toggle_Play);
  connect(&playing_, &QTimer::timeout, this, &Map_Page::Step);
  connect(picture_, &Map_Picture::Told, this, &Graph_Page::Told);
  connect(picture_, &Map_Picture::Section_Drawn, this, [this](const Section_Line& line) {
    view_.section = line;
    Refresh();
  });
  const auto remove = [this] {
    view_.section.reset();
    Refresh();
  };
  connect(picture_, &Map_Picture::Section_Removed, this, remove);
  connect(remove_, &QPushButton::clicked, this, [this, remove] {
    // A button that goes dark would lose the keyboard to nowhere in particular.
    if (remove_->hasFocus()) picture_->setFocus(Qt::OtherFocusReason);
    remove();
  });
}

// The picture loses the keyboard when the page goes, and tells so to what is a bare widget by then.
Map_Page::~Map_Page() { picture_->disconnect(this); }

void Map_Page::Show(const Shown_Results& shown) {
  Stop();
  const bool another = shown_.own && shown.own && shown_.own->path != shown.own->path;
  const bool anew = !shown_.own || species_.empty() || another;
  const std::string former = shown_.own && Own_Map(*shown_.own, view_) != nullptr
                                 ? Mapped_Name(*shown_.own, view_.species)
                                 : std::string();
  // A line through one project's site says nothing on another's.
  if (another) view_.section.reset();
  shown_ = shown;
  if (!shown_.other) view_.side = Map_Side::own;
  if (shown_.own) {
    const Results& own = *shown_.own;
    Map_View wanted = view_;
    if (anew) {
      wanted = Telling_View();
    } else {
      for (const int species : Mapped_Species(own, view_.kind)) {
        if (Mapped_Name(own, species) == former) wanted.species = species;
      }
    }
    view_ = Nearest_View(own, wanted);
  }
  Fill_Choices();
  Refresh();
}

void Map_Page::Show_Telling() {
  if (!shown_.own) return;
  Stop();
  view_ = Nearest_View(*shown_.own, Telling_View());
  Fill_Choices();
  Refresh();
}

Map_View Map_Page::Telling_View() const {
  Map_View view = First_View(*shown_.own);
  view.side = Map_Side::own;
  view.largest = false;
  return view;
}

void Map_Page::Fill_Choices() {
  const bool former = std::exchange(filling_, true);
  species_box_->clear();
  species_.clear();
  depth_->clear();
  depths_.clear();
  if (shown_.own) {
    species_ = Mapped_Species(*shown_.own, view_.kind);
    for (const int species : species_)
      species_box_->addItem(Text(Mapped_Name(*shown_.own, species)));
    const auto at = std::ranges::find(species_, view_.species);
    species_box_->setCurrentIndex(at == species_.end() ? -1
                                                       : static_cast<int>(at - species_.begin()));
    depths_ = Mapped_Depths(*shown_.own, view_.kind, view_.species);
    for (const double depth : depths_) depth_->addItem(Text(Depth_Words(depth)));
    depth_->setCurrentIndex(Place_In(depths_, view_.depth));
  }
  side_label_->setVisible(shown_.other != nullptr);
  side_->setVisible(shown_.other != nullptr);
  side_->setCurrentIndex(static_cast<int>(view_.side));
  colours_->setCurrentIndex(view_.same_scale ? 0 : 1);
  steps_->setCurrentIndex(view_.logarithmic ? 0 : 1);
  lines_->setChecked(view_.lines);
  grid_->setChecked(view_.grid);
  largest_->setChecked(view_.largest);
  Fill_Times();
  filling_ = former;
}

void Map_Page::Fill_Times() {
  times_.clear();
  if (shown_.own) times_ = Mapped_Times(*shown_.own, view_.kind, view_.species, view_.depth);
  // The slider keeps its length whatever time is told beside it.
  int widest = 0;
  for (const double time : times_) {
    const QString words = Text(Time_Words(time));
    widest = std::max(widest, time_words_->fontMetrics().horizontalAdvance(words));
  }
  time_words_->setMinimumWidth(widest);
  const int last = std::max(static_cast<int>(times_.size()) - 1, 0);
  time_->setRange(0, last);
  time_->setValue(std::max(Place_In(times_, view_.time), 0));
}

// Every choice comes here; what depends on it follows.
void Map_Page::Take_Choices() {
  if (filling_ || !shown_.own || species_.empty()) return;
  view_.side = static_cast<Map_Side>(std::max(side_->currentIndex(), 0));
  view_.species = species_[static_cast<std::size_t>(std::max(species_box_->currentIndex(), 0))];
  if (!depths_.empty()) {
    view_.depth = depths_[static_cast<std::size_t>(std::max(depth_->currentIndex(), 0))];
  }
  view_.largest = largest_->isChecked();
  view_.same_scale = colours_->currentIndex() == 0;
  view_.logarithmic = steps_->currentIndex() == 0;
  view_.lines = lines_->isChecked();
  view_.grid = grid_->isChecked();
  if (!times_.empty()) view_.time = times_[static_cast<std::size_t>(time_->value())];
  view_ = Nearest_View(*shown_.own, view_);
  Fill_Choices();
  Refresh();
}

void Map_Page::Refresh() {
  Map_Content content;
  if (shown_.own) {
    content = Content_Of(*shown_.own, shown_.other.get(), view_);
  } else {
    content.nothing = "No results are open.";
  }
  picture_->Show(std::move(content));
  const bool any = !species_.empty();
  for (QWidget* control : std::initializer_list<QWidget*>{species_box_, depth_, colours_, steps_,
                                                          lines_, grid_, side_}) {
    control->setEnabled(any);
  }
  // On a difference they tell less from more in print without colour.
  lines_->setEnabled(any && view_.side != Map_Side::difference);
  largest_->setEnabled(any && Has_Largest(*shown_.own, view_.species, view_.depth));
  const bool has_times = any && !view_.largest && times_.size() > 1;
  if (!has_times) Stop();
  play_->setEnabled(has_times);
  time_->setEnabled(has_times);
  time_words_->setText(!any            ? QString()
                       : view_.largest ? QStringLiteral("all times")
                                       : Text(Time_Words(view_.time)));
  remove_->setEnabled(view_.section.has_value());
  Picture_Changed();
  emit Changed();
}

std::string Map_Page::Numbers() const { return Map_Numbers(picture_->Drawn()); }

QString Map_Page::Picture_Name() const { return Text(picture_->Drawn().content.title); }

std::optional<Shown_Map> Map_Page::Map_Shown() const {
  const Map_Content& content = picture_->Drawn().content;
  if (!content.nothing.empty()) return std::nullopt;
  std::vector<double> levels;
  if (content.scale.two_sides) {
    for (const double level : content.scale.levels) levels.insert(levels.begin(), -level);
  }
  levels.insert(levels.end(), content.scale.levels.begin(), content.scale.levels.end());
  return Shown_Map{content.cells, levels, content.title, content.unit,
                   view_.side == Map_Side::other ? shown_.other : shown_.own};
}

int Map_Page::Sequence_Length() const { return view_.largest ? 0 : static_cast<int>(Time_Count()); }

void Map_Page::Show_In_Sequence(int place) { Set_Time(place); }

void Map_Page::Set_Time(int place) { time_->setValue(place); }

void Map_Page::Toggle_Play() {
  if (playing_.isActive()) return Stop();
  if (!play_->isEnabled()) return;
  // At the end it begins anew.
  if (time_->value() == time_->maximum()) Set_Time(0);
  playing_.start();
  play_->setText(QStringLiteral("&Pause"));
}

void Map_Page::Stop() {
  playing_.stop();
  play_->setText(QStringLiteral("&Play"));
}

void Map_Page::Step() {
  Set_Time(time_->value() + 1);
  if (time_->value() == time_->maximum()) Stop();
}

void Map_Page::hideEvent(QHideEvent* event) {
  Stop();
  Graph_Page::hideEvent(event);
}

void Map_Page::keyPressEvent(QKeyEvent* event) {
  const bool plain = event->modifiers() == Qt::NoModifier && time_->isEnabled();
  if (plain && event->key() == Qt::Key_Space) return Toggle_Play();
  if (plain && event->key() == Qt::Key_Home) return Set_Time(0);
  if (plain && event->key() == Qt::Key_End) return Set_Time(time_->maximum());
  if (plain && event->key() == Qt::Key_PageUp) return Set_Time(time_->value() - 1);
  if (plain && event->key() == Qt::Key_PageDown) return Set_Time(time_->value() + 1);
  Graph_Page::keyPressEvent(event);
}

}  // namespace barvon
