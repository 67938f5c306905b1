#include <QImage>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/portrait_view.h"
#include "work/portrait_palette.h"

using namespace kalco;

/// The portrait as Qt draws it: whole faces in the tones of their players.
class TestPortrait : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() {
        view_ = std::make_unique<app::PortraitView>();
        view_->resize(portrait_side, portrait_side);
    }
    void cleanup() { view_.reset(); }

    void the_face_has_the_tones_of_the_player() {
        for (int skin = 0; skin < 4; ++skin) {
            view_->show_looks({.skin = skin, .hair_style = "B1", .hair_colour = 7, .beard_style = "A"});
            QCOMPARE(colour_at(cheek), colour(skin_palette[static_cast<std::size_t>(skin)].base));
            QCOMPARE(colour_at(crown), colour(hair_palette[7].base));
        }
    }

    void a_beard_lies_on_the_face() {
        view_->show_looks({.skin = 0, .hair_style = "B1", .beard_style = "G", .beard_colour = 4});
        QCOMPARE(colour_at(chin), colour(beard_palette[4].base));
    }

    void without_a_player_the_card_is_empty() {
        view_->show_looks({.skin = 0});
        view_->show_looks({});
        const QColor card = colour_at(cheek);
        QVERIFY(card.blue() > card.red());
        QCOMPARE(colour_at({20, cheek.y()}), card);
    }

private:
    static constexpr QPoint cheek{66, 88};
    static constexpr QPoint crown{60, 30};
    static constexpr QPoint chin{75, 112};

    static QColor colour(std::string_view tone) { return QColor(QString::fromLatin1(tone.data(), 7)); }

    QColor colour_at(QPoint point) const {
        QImage picture(portrait_side, portrait_side, QImage::Format_ARGB32);
        picture.fill(Qt::white);
        view_->render(&picture);
        return picture.pixelColor(point);
    }

    std::unique_ptr<app::PortraitView> view_;
};

KALCO_WINDOW_TEST(TestPortrait)
#include "test_portrait.moc"
