#include "screen/Design.h"

#include <array>
#include <cassert>
#include <string_view>

namespace {

// A row places one control, or the members of a control array from index `from` on: in `columns` columns,
// `stepX` and `stepY` apart.
struct Row {
    std::string_view name;
    TwipsRect place;
    const char* caption = "";
    int from = 0;
    int columns = 1;
    Twips stepX = 0, stepY = 0;
};

// Positions are relative to the control's holder. What stands right of 5985 or below 6165 is out of sight.
constexpr Row kRows[] = {
    // the window itself
    {"Picture4", {750, 900, 3945, 3945}},
    {"shpRect", {750, 900, 3945, 3945}},
    {"picPreview", {765, 4930, 960, 960}},
    {"lblNextCard", {0, 330, 900, 240}, "next card"},
    {"prbTime", {270, 915, 195, 3945}},
    {"shpTime", {240, 885, 255, 4005}},
    {"lblScore", {3540, 5580, 2190, 420}, "0"},
    {"lblCardsLeft", {2640, 5400, 750, 765}, "0"},
    {"Image1", {5640, 30, 255, 285}},
    {"imgMinimaize", {5325, 30, 255, 285}},
    {"imgWebLink", {120, 5070, 405, 885}},
    {"Label16", {2520, 195, 2670, 255}, "Come and compete online at "},
    {"Label17", {2520, 450, 2670, 255}},
    {"Image2", {5130, 1500, 765, 2910}},
    {"imgButton", {5220, 3660, 555, 540}},
    {"imgButton", {5220, 2970, 585, 570}, "", 1},
    {"imgButton", {5220, 1590, 585, 570}, "", 2},
    {"imgButton", {5220, 2310, 585, 555}, "", 3},
    {"imgButton", {3210, 150, 600, 330}, "", 4},

    // on the window, out of sight
    {"picTemp", {7140, 3000, 960, 960}},
    {"lblSerieScore", {7140, 5580, 1800, 300}, "0"},
    {"lblCardsInMatrix", {8190, 5580, 1800, 300}, "CardsInMatrix"},
    {"lblLevelBack", {7380, 120, 1500, 300}},
    {"lblLevelName", {7380, 120, 1500, 300}},
    {"lblCaption", {7140, 6600, 690, 240}, "", 0, 4, 900, 0},
    {"lblCaption", {3210, 180, 600, 270}, "", 4},
    {"shpArea", {7140, 6600, 690, 240}, "", 0, 4, 900, 0},
    {"shpArea", {3210, 150, 600, 330}, "", 4},
    {"Label1", {7140, 600, 1800, 450}, "Tesselor"},
    {"Label2", {7155, 615, 1800, 450}, "Tesselor"},
    {"Label5", {7140, 1200, 1800, 240}},
    {"lblHelp", {7140, 1500, 1800, 240}},
    {"Label8", {7140, 1800, 240, 240}, "X"},
    {"Label9", {7155, 1815, 240, 240}, "X"},
    {"Label10", {7140, 2100, 900, 240}, "Score"},
    {"Label11", {8040, 2100, 900, 240}, "cards"},
    {"Label12", {8940, 2100, 900, 240}, "score"},
    {"Image3", {7140, 2400, 480, 480}},
    {"Image4", {7740, 2400, 480, 480}},
    {"cmdPrint", {7140, 7200, 900, 345}, "Print"},
    {"picEnterName", {7140, 4200, 2655, 1215}},
    {"shpEnterName", {0, 0, 2655, 1215}},
    {"shpEnterName", {45, 45, 2565, 1125}, "", 1},
    {"Label3", {120, 120, 2415, 255}, "Enter Your Name"},
    {"txtName", {165, 420, 2325, 330}},
    {"cmdOk", {870, 810, 915, 300}, "OK"},

    // the four screens, laid over one another at start-up
    {"fraScreen", {750, 900, 3945, 3945}},
    {"fraScreen", {7140, 7800, 3915, 3915}, "Frame2", 1, 3, 4050, 0},
    {"picMat", {0, 0, 960, 960}, "", 0, 4, 990, 990},

    // levels and skins
    {"Label6", {120, 195, 1500, 255}, " select level"},
    {"Picture3", {120, 540, 1500, 1995}},
    {"shpLevel", {315, 90, 1125, 300}},
    {"lblClass", {390, 105, 1050, 270}, "", 0, 1, 0, 360},
    {"Shape1", {180, 120, 105, 135}},
    {"picCurrSkin", {570, 2820, 525, 555}},
    {"lblSkinName", {120, 3420, 1500, 240}, "sea"},
    {"Label7", {1740, 195, 1965, 255}, "select skin"},
    {"Picture1", {1740, 540, 1965, 2655}},
    {"picSkin", {60, 30, 585, 615}, "", 0, 3, 630, 660},
    {"Label13", {1740, 3270, 1965, 225}, "for more skins"},
    {"Label14", {1740, 3480, 1965, 225}},

    // help
    {"lblHelpText1", {150, 180, 2580, 900}, "Text"},
    {"imgMouse", {480, 870, 690, 690}},
    {"imgMouse", {1680, 960, 690, 690}, "", 1, 2, 1170, 0},
    {"lblHelpText2", {330, 1590, 990, 225}, "move card"},
    {"lblHelpText3", {1530, 1590, 990, 225}, "lock card"},
    {"lblHelpText4", {2580, 1590, 1230, 225}, "pause/resume"},
    {"shpKey", {345, 1875, 960, 270}},
    {"shpKey", {1695, 1875, 660, 270}, "", 1},
    {"shpKey", {3015, 1875, 360, 270}, "", 2},
    {"lblKey", {345, 1875, 960, 270}, "arrow keys"},
    {"lblKey", {1695, 1875, 660, 270}, "space", 1},
    {"lblKey", {3015, 1875, 360, 270}, "P", 2},
    {"Picture2", {835, 2400, 390, 435}},
    {"lblActiveCard", {660, 2940, 1200, 225}, "active card      "},
    {"imgErasor", {2520, 2340, 855, 840}},
    {"lblErasor", {2550, 2970, 825, 225}, "erasor"},
    {"cmdHelp", {840, 3330, 765, 345}, "more"},
    {"cmdDemo", {2280, 3330, 765, 345}, "demo"},

    // high scores
    {"lblCName", {135, 225, 1290, 270}, "name"},
    {"lblCDate", {1485, 225, 1080, 270}, "date"},
    {"lblCHighScore", {2580, 225, 1200, 270}, "score"},
    {"lblName", {135, 705, 1290, 270}, "", 0, 1, 0, 555},
    {"lblDate", {1485, 705, 1080, 270}, "", 0, 1, 0, 555},
    {"lblHighScore", {2580, 705, 1200, 270}, "", 0, 1, 0, 555},
    {"Line2", {135, 555, 3645, 15}},
    {"Line4", {135, 1110, 3645, 15}},
    {"Line5", {135, 1665, 3645, 15}},
    {"Line6", {135, 2220, 3645, 15}},
    {"Line7", {135, 2775, 3645, 15}},
    {"Label15", {135, 3105, 3645, 240}, "submit your high score"},
    {"Label4", {135, 3345, 3645, 240}},
};

const Row* Find(std::string_view name, int index) {
    const Row* found = nullptr;
    for (const Row& row : kRows)
        if (row.name == name && row.from <= index) found = &row;
    return found;
}

}  // namespace

Placement Design(const char* name, int index) {
    const int member = index < 0 ? 0 : index;
    const Row* row = Find(name, member);
    assert(row);
    if (!row) return {QString::fromLatin1(name), {}, {}};
    const int nth = member - row->from;
    TwipsRect place = row->place;
    place.left += nth % row->columns * row->stepX;
    place.top += nth / row->columns * row->stepY;
    const QString object = QString::fromLatin1(name);
    return {index < 0 ? object : QStringLiteral("%1(%2)").arg(object).arg(index), place,
            QString::fromUtf8(row->caption)};
}
