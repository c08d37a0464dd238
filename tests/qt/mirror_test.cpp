// Each window as the player sees it: sizes, places, colours, rows and the caret, in the pixels of whatever screen the test runs on.
#include <gmock/gmock.h>

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QWindow>
#include <cmath>

#include "tests/qt/screen.h"
#include "ui/qt/application.h"
#include "ui/qt/look.h"

using namespace ui;

namespace {

constexpr std::string_view TallText = "ŽÁŮgjpqy";

// How many rows of pixels of the area show anything but the background.
int InkedRows(const QImage& image, const QRect& area, const QColor& background) {
    int rows = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        int x = area.left();
        while (x <= area.right() && image.pixelColor(x, y) == background) ++x;
        rows += x <= area.right();
    }
    return rows;
}

// The same for the text where it has all the room it needs.
int InkedRows(const QString& text, const QFont& font, qreal density) {
    QImage image((QSizeF(300, 60) * density).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(density);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::yellow);
    painter.drawText(10, 30, text);
    painter.end();
    return InkedRows(image, image.rect(), Qt::black);
}

QRect Scaled(const QRect& area, const QImage& image) {
    const auto scale = [&image](int length) { return static_cast<int>(std::lround(length * image.devicePixelRatio())); };
    return {scale(area.x()), scale(area.y()), scale(area.width()), scale(area.height())};
}

QColor ColourAt(const QImage& image, QPoint place) {
    return image.pixelColor(Scaled(QRect(place, QSize(1, 1)), image).center());
}

}  // namespace

TEST(QtWindows, HaveTheirLayoutToThePixel) {
    Screen screen;
    for (Form* form : screen.windows.All) {
        screen.Show(*form);
        const auto& widget = screen.Widget(*form);
        EXPECT_TRUE(widget.isVisible()) << form->Layout.Name;
        const QSize designed(form->Layout.Width / 15, form->Layout.Height / 15);
        EXPECT_TRUE(form->Layout.Backdrop || widget.size() == designed) << form->Layout.Name;
        for (const Control& control : form->Controls) {
            const Rect& bounds = LayoutOf(control).Bounds;
            EXPECT_EQ(widget.WidgetOf(control)->geometry(), QRect(bounds.Left / 15, bounds.Top / 15, bounds.Width / 15, bounds.Height / 15))
                << form->Layout.Name << '.' << LayoutOf(control).Name;
            EXPECT_EQ(widget.WidgetOf(control)->font(), qt::ToQt(LayoutOf(control).Font))
                << form->Layout.Name << '.' << LayoutOf(control).Name;
        }
    }
}

TEST(QtWindows, AreAsManyAsThereAre) {
    Windows windows;
    SystemWindow sixth{windows.All};
    qt::QtDesktop desktop{windows};
    desktop.Enter([&] { Show(windows, sixth.Window); });
    EXPECT_TRUE(desktop.WidgetOf(sixth.Window).isVisible());
}

TEST(QtWindows, StandInTheMiddleAndTheBackdropFillsTheScreen) {
    Screen screen;
    screen.Show(screen.windows.Form5.Window);
    screen.Show(screen.windows.Form1.Window);
    screen.Show(screen.windows.Form4.Window);
    const QRect whole = screen.Widget(screen.windows.Form1.Window).screen()->geometry();
    EXPECT_EQ(screen.Widget(screen.windows.Form5.Window).geometry(), whole);
    const QRect main = screen.Widget(screen.windows.Form1.Window).geometry();
    EXPECT_LE((main.center() - whole.center()).manhattanLength(), 2);
    screen.Widget(screen.windows.Form1.Window).move(0, 0);
    screen.Do([&] { Hide(screen.windows.Form4.Window); });
    screen.Show(screen.windows.Form4.Window);
    EXPECT_EQ(screen.Widget(screen.windows.Form4.Window).geometry().center(),
              screen.Widget(screen.windows.Form1.Window).geometry().center());
}

TEST(QtWindows, PaintEveryControlInItsColours) {
    Screen screen;
    screen.windows.Form1.Text1.SetVisible(true);
    for (Form* form : screen.windows.All) {
        screen.Show(*form);
        const QImage picture = screen.Picture(*form);
        for (const Control& control : form->Controls) {
            const ControlLayout& layout = LayoutOf(control);
            if (!layout.Background) continue;
            const QRect place = qt::Pixels(layout.Bounds);
            const bool bordered = layout.Kind != ControlKind::Label;
            const std::string where = std::string(form->Layout.Name) + '.' + std::string(layout.Name);
            EXPECT_EQ(ColourAt(picture, place.topLeft()), bordered ? qt::BorderColour : qt::ToQt(*layout.Background)) << where;
            EXPECT_EQ(ColourAt(picture, place.bottomRight()), bordered ? qt::BorderColour : qt::ToQt(*layout.Background)) << where;
            EXPECT_EQ(ColourAt(picture, place.bottomLeft() + QPoint(2, -2)), qt::ToQt(*layout.Background)) << where;
        }
    }
}

TEST(QtWindows, ShowTheirPictureOrTheirPlainColour) {
    const QTemporaryDir folder;
    QImage drawn(1330, 1124, QImage::Format_RGB32);
    drawn.fill(Qt::darkGreen);
    drawn.setPixelColor(1329, 1123, Qt::red);
    drawn.save(folder.filePath("true colours"), "PNG");
    drawn.convertToFormat(QImage::Format_Indexed8).save(folder.filePath("palette"), "PNG");
    Screen screen;
    Form& form = screen.windows.Form1.Window;
    form.Picture = folder.filePath("missing").toStdString();
    screen.Show(form);
    EXPECT_EQ(ColourAt(screen.Picture(form), {5, 5}), QColor(192, 192, 192));
    for (const char* name : {"true colours", "palette"}) {
        screen.Do([&] { form.Picture = folder.filePath(name).toStdString(); });
        const QImage picture = screen.Picture(form);
        EXPECT_EQ(ColourAt(picture, {5, 5}), QColor(Qt::darkGreen));
        EXPECT_GT(picture.pixelColor(picture.width() - 1, picture.height() - 1).red(), 50);
        EXPECT_EQ(picture.pixelColor(picture.width() - 1, picture.height() - 4), QColor(Qt::darkGreen));
    }
}

TEST(QtWindows, AreDressedForTheGame) {
    Screen screen;
    for (Form* form : screen.windows.All) {
        screen.Show(*form);
        auto& widget = screen.Widget(*form);
        const bool backdrop = form->Layout.Backdrop;
        EXPECT_EQ(widget.windowFlags().testFlag(Qt::WindowStaysOnTopHint), !backdrop) << form->Layout.Name;
        EXPECT_EQ(widget.windowFlags().testFlag(Qt::WindowStaysOnBottomHint), backdrop) << form->Layout.Name;
        EXPECT_EQ(widget.windowIcon().isNull(), backdrop) << form->Layout.Name;
        EXPECT_EQ(ColourAt(screen.Picture(*form), {5, 5}) == qt::ToQt(form->Layout.Background), backdrop) << form->Layout.Name;
        EXPECT_EQ(widget.windowHandle()->transientParent() != nullptr, !backdrop && !form->Layout.Framed) << form->Layout.Name;
    }
}

TEST(QtWindows, CutTheBottomCornersOfTheMainWindowOnly) {
    Screen screen;
    const QRegion mask = screen.Widget(screen.windows.Form1.Window).mask();
    EXPECT_TRUE(screen.Widget(screen.windows.Form5.Window).mask().isEmpty());
    EXPECT_EQ(mask.boundingRect(), QRect(0, 0, 665, 562));
    EXPECT_TRUE(mask.contains(QPoint(0, 0)));
    EXPECT_FALSE(mask.contains(QPoint(0, 561)));
    EXPECT_FALSE(mask.contains(QPoint(664, 561)));
    EXPECT_TRUE(mask.contains(QPoint(2, 561)));
    EXPECT_TRUE(mask.contains(QPoint(0, 559)));
}

TEST(QtLists, HaveRowsOfSixteenPixelsAndCutNoLetter) {
    Screen screen;
    for (Form* form : {&screen.windows.Form1.Window, &screen.windows.Form4.Window}) {
        screen.Show(*form);
        for (const Control& control : form->Controls) {
            if (!std::holds_alternative<ListBox*>(control)) continue;
            screen.Do([&] {
                GiveFocus(screen.windows, form->Focused == control ? &screen.windows.Form4.Text1 : &screen.windows.Form1.Text2);
                std::get<ListBox*>(control)->Clear();
                for (int entry = 0; entry < 12; ++entry) std::get<ListBox*>(control)->Append(TallText);
            });
            auto& list = screen.Widget<qt::EntryList>(*form, control);
            const int rows = (LayoutOf(control).Bounds.Height / 15 - 2) / 16;
            EXPECT_TRUE(list.RowRect(rows).isEmpty());
            const QImage picture = list.viewport()->grab().toImage();
            const int expected = InkedRows(qt::ToQt(TallText), list.font(), picture.devicePixelRatio());
            for (int row = 0; row < rows; ++row) {
                EXPECT_EQ(list.RowRect(row).top(), row * 16);
                EXPECT_EQ(InkedRows(picture, Scaled(list.RowRect(row), picture), Qt::black), expected) << LayoutOf(control).Name;
            }
        }
    }
    EXPECT_FALSE(screen.Widget<qt::EntryList>(screen.windows.Form4.Window, &screen.windows.Form4.List1).RowRect(9).isEmpty());
}

TEST(QtText, IsNotCutInAnyLine) {
    Screen screen;
    for (Form* form : screen.windows.All) {
        screen.Show(*form);
        for (const Control& control : form->Controls) {
            QWidget& widget = *screen.Widget(*form).WidgetOf(control);
            const ControlLayout& layout = LayoutOf(control);
            if (!layout.Background || layout.MultiLine || layout.Kind == ControlKind::ListBox) continue;
            screen.Do([&] {
                if (auto* const* box = std::get_if<TextBox*>(&control)) (*box)->SetText(TallText);
            });
            widget.clearFocus();  // no caret beside the letters
            const QImage picture = widget.grab().toImage();
            const int border = layout.Kind == ControlKind::Label ? 0 : 1;
            const QRect inside = widget.rect().adjusted(border, border, -border, -border);
            const QString text = layout.Caption.empty() ? qt::ToQt(TallText) : qt::ToQt(layout.Caption);
            EXPECT_EQ(InkedRows(picture, Scaled(inside, picture), qt::ToQt(*layout.Background)),
                      InkedRows(text, widget.font(), picture.devicePixelRatio()))
                << form->Layout.Name << '.' << layout.Name;
            EXPECT_LE(widget.fontMetrics().horizontalAdvance(text), widget.width());
        }
    }
}

TEST(QtCaret, IsOneBySevenPixelsInAllFourInputBoxes) {
    Screen screen;
    for (Form* form :
         {&screen.windows.Form1.Window, &screen.windows.Form2.Window, &screen.windows.Form3.Window, &screen.windows.Form4.Window}) {
        for (const Control& control : form->Controls) {
            auto* const* box = std::get_if<TextBox*>(&control);
            if (box == nullptr || (*box)->Layout.MultiLine) continue;
            screen.Show(*form);
            screen.Do([&] { GiveFocus(screen.windows, control); });
            auto& line = screen.Widget<qt::InputLine>(*form, control);
            ASSERT_TRUE(line.hasFocus()) << form->Layout.Name;
            const QImage picture = line.grab().toImage();
            int lit = 0;
            for (int x = 0; x < picture.width(); ++x) {
                for (int y = 0; y < picture.height(); ++y) lit += picture.pixelColor(x, y) == QColor(Qt::yellow);
            }
            EXPECT_EQ(lit, std::lround(7 * picture.devicePixelRatio() * picture.devicePixelRatio())) << form->Layout.Name;
            EXPECT_EQ(line.CaretRect().size(), QSize(1, 7));
        }
    }
}

TEST(QtLists, ShowWhatIsSelectedAndWhereTheFocusIs) {
    Screen screen;
    ListBox& list = screen.windows.Form4.List1;
    for (const char* entry : {"první", "druhá"}) list.Append(entry);
    list.Select(1);
    screen.Show(screen.windows.Form4.Window);
    auto& widget = screen.Widget<qt::EntryList>(screen.windows.Form4.Window, &list);
    const auto pixels = [&](int row, const QColor& colour) {
        const QImage picture = widget.viewport()->grab().toImage();
        const QRect area = Scaled(widget.RowRect(row), picture);
        int found = 0;
        for (int x = area.left(); x <= area.right(); ++x) found += picture.pixelColor(x, area.top()) == colour;
        return found * 10 / area.width();  // tenths of its upper edge
    };
    EXPECT_EQ(pixels(0, Qt::black), 10);
    EXPECT_THAT(pixels(1, qt::ToQt(Teal)), ::testing::AllOf(::testing::Gt(0), ::testing::Lt(10)));  // dotted
    screen.Do([&] { GiveFocus(screen.windows, &screen.windows.Form4.Text1); });
    EXPECT_EQ(pixels(1, qt::ToQt(Teal)), 10);
}

TEST(QtFonts, CountAsThereWhenTextIsMadeLikeTheirs) {
    const bool there = !qEnvironmentVariableIsSet("FONTCONFIG_FILE");
    EXPECT_EQ(qt::HasFontFamily("Arial"), there);
    EXPECT_FALSE(qt::HasFontFamily("No Such Family"));
    EXPECT_FALSE(qt::HasFontFamily("Helvetica"));
    const QFont large = qt::ToQt(ui::Font{.Points = 1536});
    EXPECT_TRUE(!there || QFontMetrics(large).horizontalAdvance("Wiač") == 1933 + 455 + 1139 + 1024);  // the widths of Arial
    EXPECT_EQ(qt::ToQt(ui::Font{.Points = 9.75}).pixelSize(), 13);
    EXPECT_EQ(qt::ToQt(ui::Font{.Points = 8.25}).pixelSize(), 11);
    EXPECT_TRUE(qt::ToQt(ui::Font{.Bold = true}).bold());
    EXPECT_TRUE(qt::ToQt(ui::Font{.Italic = true}).italic());
}

TEST(QtScreen, IsMissedInCzech) {
    const QTemporaryDir folder;
    const auto why = [](const char* variable, const QByteArray& value) {
        const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
        qunsetenv("QT_QPA_PLATFORM");
        qputenv("DISPLAY", ":no such display");
        qputenv(variable, value);
        const auto reason = qt::ChoosePlatform();
        qputenv("QT_QPA_PLATFORM", platform);
        return reason.value_or("");
    };
    EXPECT_EQ(qt::ChoosePlatform(), std::nullopt);
    EXPECT_THAT(why("XDG_RUNTIME_DIR", folder.path().toUtf8()), ::testing::HasSubstr("žádný displej"));
    ASSERT_TRUE(QFile(folder.filePath("wayland-7")).open(QIODevice::WriteOnly));
    EXPECT_THAT(why("WAYLAND_DISPLAY", "wayland-7"), ::testing::Not(::testing::HasSubstr("žádný displej")));
}
