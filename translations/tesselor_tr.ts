<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>“%1” açılamıyor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>“%1” için yeterli boş bellek yok.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>“%1”, oyunun okuyabileceği bir resim değil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>“%1” %2 × %3 piksel; bir tema 3 × 13 kareden oluşur, bu yüzden en az 3 × 13 piksel olmalıdır.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>“%1” %2 × %3 piksel; bir tema en fazla 16 milyon piksel olabilir.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>“%1” bulunamadı.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>“%1” çok büyük; bir tema en fazla 64 megabayt olabilir.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>“%1” dosyasının okunması çok uzun sürüyor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>“%1” bozuk veya eksik.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>seviyeler ve temalar</translation>
    </message>
    <message>
        <source>help</source>
        <translation>yardım</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>en iyi skorlar</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Alıştırma</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Çaylak</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Kıdemli</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Uzman</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Usta</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Tema: %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Seviye seçin</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Tema seçin</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Daha fazla tema:</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Oyunun kurallarını açar</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>Tanıtım oyunu oynatır</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Silgi: silmek istediğiniz kartın üzerine yerleştirin</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Kartı taşı: ok tuşları veya fare</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Kartı yerleştir: boşluk tuşu veya sol fare düğmesi</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Durdur ve sürdür: P veya sağ fare düğmesi</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Kartı taşı</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Yerleştir</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Durdur/sürdür</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Ok tuşları</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Aktif kart</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Silgi</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Yeni oyun başlat</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Seviye ve tema seç</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Nasıl oynanır</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>En iyi skorlar</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Kuralları oku</translation>
    </message>
    <message>
        <source>play</source>
        <translation>oyna</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>menü</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>En iyi skorlar</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Yeni oyun başlatır</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Oyunun nasıl oynandığını anlatır</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>En iyi dört oyun</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Adınızı girin</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>%1. sıra: boş</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>%1. sıra: %2, skor %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>adsız</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Skor</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Skorunuzu gönderin:</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>çıkış</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Programı kapatır</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>simge durumuna küçült</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Skor: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>%n kart kaldı</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Geçen süre</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Çevrimiçi yarışmaya katılın:</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>KALAN KART</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>SKOR</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Sıradaki</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Kayıt şu dosyaya yazılamadı: %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Rengi, şekli veya adedi aynı ya da 1, 2, 3, 4 diye giden dört kartı dizin. Çok ortak yön, çok puan!</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Oyunun kuralları</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Süre doldu: satır %1, sütun %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Süre doldu.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Dizi tamam: %Ln puan.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Oyun bitti. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Bu temayı değiştirmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Hiç tema bulunamadı. Tema, 3 × 13 karttan oluşan bir resimdir; şu klasöre bir tane koyun: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>“%1” şu klasöre yazılamadı: %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Durduruldu.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Oyun sürüyor.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Sürenin dörtte biri kaldı.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>kapalı</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>boş</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, aktif kart</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, aktif kart, altında %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>altta %2, aktif kart %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>silgi</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>şekil %1, renk %2, adet %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Satır %1, sütun %2: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Sıradaki kart: yok</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Sıradaki kart: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Tahta, %1 seviyesi, durduruldu</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Tahta, %1 seviyesi</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>boş, yeni tema için buraya bir resim bırakın</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Önemli uyarı!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Bu program yalnızca küçük yazı tipleriyle çalışır</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Lütfen sisteminizi “Küçük Yazı Tipleri”ne ayarlayın</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>Windows sistem ayarlarında</translation>
    </message>
    <message>
        <source>Usage: tesselor [options]
A single-player card puzzle.

  -h, --help     show this help and exit
  -v, --version  show the version and exit
      --scale N  enlarge the window N times, from 1 to 4, such as 1.5

Qt options such as -platform are accepted as well. Set TESSELOR_HOME to use
another folder for skins, rules text and sound files.
</source>
        <translation>Kullanım: tesselor [seçenekler]
Tek kişilik bir kart bulmacası.

  -h, --help     bu yardımı gösterir ve çıkar
  -v, --version  sürümü gösterir ve çıkar
      --scale N  pencereyi N kat büyütür; 1 ile 4 arası, örneğin 1.5

-platform gibi Qt seçenekleri de kabul edilir. TESSELOR_HOME ile temalar, kural
metni ve ses dosyaları için başka bir klasör belirleyebilirsiniz.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale için 1 ile 4 arasında bir sayı gerekir, örneğin 1.5; “%1” olmaz.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor penceresini gösteremiyor: kullanılabilir bir ekran yok.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor penceresini gösteremiyor: Qt için Wayland eklentisi eksik. Bu eklenti %1 paketindedir.</translation>
    </message>
</context>
</TS>
