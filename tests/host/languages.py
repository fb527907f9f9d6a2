"""Texts of the host in the languages of all code pages: a title, a cover letter, parameters and a comment."""
import unicodedata
from dataclasses import dataclass

from options_file import write_options_with_cover
from print_file import PrintFile, escaped, write_parameters
from servo_pack import Parameter

TONES = "\u0300\u0301\u0303\u0309\u0323"


@dataclass(frozen=True)
class Language:
    code_page: int
    name: str
    title: str
    company: str
    person: str
    subject: str
    greeting: tuple
    parameters: tuple  # names
    comment: tuple

    def lines(self):
        """What is on the pages as lines of their own."""
        return (self.title, self.company, self.person, self.subject, *self.greeting, *self.parameters, *self.comment)


LANGUAGES = (
    Language(874, "Thai", "รายการพารามิเตอร์", "บริษัท เครื่องจักรไทย จำกัด", "คุณสมชาย ใจดี", "การตั้งค่าแกนที่ 1",
             ("ขอบคุณที่เลือกใช้ไดรฟ์ของเรา", "กรุณาดูค่าที่ตั้งไว้ในหน้าถัดไป"),
             ("อัตราขยายลูปความเร็ว", "ค่าคงที่เวลาอินทิกรัล", "ขีดจำกัดแรงบิด Pn402", "น้ำหนักที่กำหนด"),
             ("ตั้งค่าด้วยน้ำหนัก 12 kg", "ห้ามเพิ่มเกินค่านี้ เพราะเสาจะสั่น")),
    Language(932, "Japanese", "パラメータ一覧", "北港モーション株式会社", "山田 太郎", "軸１の調整結果",
             ("当社のドライブをお選びいただき、ありがとうございます。", "次のページの設定をご覧ください。"),
             ("速度ループゲイン", "速度ループ積分時定数", "ﾄﾙｸ制限 (正転側)", "位置ループゲイン Pn102"),
             ("荷重１２ｋｇで調整しました。", "ゲインを７０より大きくしないでください。")),
    Language(936, "Chinese", "参数一览表", "北港运动控制有限公司", "王小明", "第1轴的调试结果",
             ("感谢您选用本公司的驱动器。", "请查看下一页的设定值。"),
             ("速度环增益", "速度环积分时间常数", "转矩限制（正转侧）", "位置环增益 Pn102"),
             ("在12公斤的负载下调整。", "请勿将增益提高到70以上，否则立柱会振动。")),
    Language(949, "Korean", "매개변수 목록", "북항 모션 주식회사", "홍길동", "1축 조정 결과",
             ("저희 드라이브를 선택해 주셔서 감사합니다.", "다음 페이지의 설정을 확인하십시오."),
             ("속도 루프 게인", "속도 루프 적분 시정수", "토크 제한 (正轉側)", "위치 루프 게인 Pn102"),
             ("하중 12 kg으로 조정했습니다.", "게인을 70보다 높이지 마십시오.")),
    Language(950, "TraditionalChinese", "參數一覽表", "北港運動控制有限公司", "王小明", "第1軸的調整結果",
             ("感謝您選用本公司的驅動器。", "請參閱下一頁的設定值。"),
             ("速度迴路增益", "速度迴路積分時間常數", "轉矩限制（正轉側）", "位置迴路增益 Pn102"),
             ("在12公斤的負載下調整。", "請勿將增益提高到70以上，否則立柱會振動。")),
    Language(1250, "Polish", "Lista parametrów", "Północny Port Sp. z o.o.", "Łukasz Żółć", "Ustawienia osi 1",
             ("Dziękujemy za wybór naszych napędów.", "Příliš žluťoučký kůň; háčkek őűŐŰ."),
             ("Wzmocnienie pętli prędkości", "Stała czasowa całkowania", "Ograniczenie momentu", "Wzmocnienie pętli Pn102"),
             ("Nastrojono z obciążeniem 12 kg.", "Nie zwiększać wzmocnienia powyżej 70.")),
    Language(1251, "Russian", "Список параметров", "ООО «Северный порт»", "Пётр Щукин", "Настройка оси 1",
             ("Благодарим за выбор наших приводов.", "Смотрите настройки на следующих страницах."),
             ("Усиление контура скорости", "Постоянная времени", "Ограничение момента", "Усиление контура Pn102"),
             ("Настроено с грузом 12 кг.", "Не повышайте усиление выше 70.")),
    Language(1252, "German", "Parameterliste", "Nordhafen Antriebe GmbH", "Jörg Weiß", "Einstellungen der Achse 1",
             ("Danke, daß Sie unsere Antriebe gewählt haben.", "Überprüfen Sie die Werte auf den nächsten Seiten."),
             ("Verstärkung des Drehzahlreglers", "Zeitkonstante des Integrals", "Drehmomentgrenze", "Verstärkung Pn102"),
             ("Eingestellt mit 12 kg Last, ± 5 %.", "Nicht über 70 erhöhen: der Mast schwingt.")),
    Language(1253, "Greek", "Κατάλογος παραμέτρων", "Βόρειο Λιμάνι ΑΕ", "Γιώργος Παπαδόπουλος", "Ρυθμίσεις του άξονα 1",
             ("Ευχαριστούμε που επιλέξατε τους οδηγούς μας.", "Δείτε τις ρυθμίσεις στις επόμενες σελίδες."),
             ("Κέρδος βρόχου ταχύτητας", "Σταθερά χρόνου", "Όριο ροπής", "Κέρδος βρόχου Pn102"),
             ("Ρυθμίστηκε με φορτίο 12 kg.", "Μην αυξάνετε το κέρδος πάνω από 70.")),
    Language(1254, "Turkish", "Parametre listesi", "Kuzey Limanı A.Ş.", "Işıl Güneş", "Eksen 1 ayarları",
             ("Sürücülerimizi seçtiğiniz için teşekkür ederiz.", "Ayarlar için sonraki sayfalara bakınız."),
             ("Hız döngüsü kazancı", "İntegral zaman sabiti", "Tork sınırı", "Konum döngüsü kazancı Pn102"),
             ("12 kg yük ile ayarlandı.", "Kazancı 70 üzerine çıkarmayın.")),
    Language(1255, "Hebrew", "רשימת פרמטרים", "נמל הצפון בע\"מ", "דוד כהן", "הגדרות ציר 1",
             ("תודה שבחרתם בכוננים שלנו.", "ראו את הערכים בעמודים הבאים (Pn100)."),
             ("הגבר לולאת מהירות", "קבוע זמן אינטגרלי", "הגבלת מומנט 300%", "הגבר לולאה Pn102"),
             ("כוונן עם עומס של 12 kg.", "שָׁלוֹם: אין להגדיל מעל 70!")),
    Language(1256, "Arabic", "قائمة المعلمات", "شركة الميناء الشمالي", "أحمد السالم", "إعدادات المحور 1",
             ("شكرا لاختياركم محركاتنا.", "الرجاء مراجعة القيم في الصفحات التالية (Pn100)."),
             ("كسب حلقة السرعة", "ثابت زمن التكامل", "حد عزم الدوران 300%", "كسب الحلقة Pn102"),
             ("تم الضبط مع حمل 12 kg.", "لا ترفع الكسب فوق 70: الأعمدة تهتز!")),
    Language(1257, "Lithuanian", "Parametrų sąrašas", "Šiaurės uostas UAB", "Žydrūnas Čepėnas", "1 ašies nustatymai",
             ("Dėkojame, kad pasirinkote mūsų pavaras.", "Žr. nustatymus kituose puslapiuose; ģķļņ õäöü."),
             ("Greičio kilpos stiprinimas", "Integravimo laiko pastovioji", "Sukimo momento riba", "Padėties kilpa Pn102"),
             ("Suderinta su 12 kg apkrova.", "Nedidinkite stiprinimo virš 70.")),
    Language(1258, "Vietnamese", "Danh sách thông số", "Công ty Cảng Bắc", "Nguyễn Thị Hồng", "Cài đặt trục 1",
             ("Cảm ơn quý khách đã chọn bộ điều khiển.", "Xin xem các giá trị ở những trang tiếp theo."),
             ("Độ khuếch đại vòng tốc độ", "Hằng số thời gian tích phân", "Giới hạn mômen", "Khuếch đại vòng vị trí Pn102"),
             ("Đã chỉnh với tải trọng 12 kg.", "Không tăng độ khuếch đại quá 70.")),
    Language(65001, "Unicode", "Parameters 参数 Параметры", "Nord ☎ Σ", "חיים Łukasz", "Axis 1 محور",
             ("שלום Pn100 ไทย Việt 한국어 日本語 عربي", "Ελληνικά Pn100 ≤ 70 µm → Ω"),
             ("ความเร็ว speed سرعة", "מהירות 100 מומנט", "x\u0332y\u0332 標準", "Khuếch đại Pn102"),
             ("12 kg ± 5 %", "70 < x")),
)


def encoded(text, code_page):
    """Bytes of a code page. That of Vietnam has the marks of the tones apart from the letters."""
    if code_page == 65001:
        return text.encode()
    if code_page != 1258:
        return text.encode(f"cp{code_page}")
    pieces = []
    for letter in text:
        parts = unicodedata.normalize("NFD", letter)
        tone = "".join(part for part in parts if part in TONES)
        rest = unicodedata.normalize("NFC", "".join(part for part in parts if part not in TONES))
        try:
            pieces.append(letter.encode("cp1258"))
        except UnicodeEncodeError:
            pieces.append((rest + tone).encode("cp1258"))
    return b"".join(pieces)


def write_language(host, language):
    """Parameters and options with a cover letter, for a host in this language."""
    configuration = host.configuration.read_text(encoding="utf-8")
    host.configuration.write_text(configuration.replace("CodePage=1252", f"CodePage={language.code_page}"),
                                  encoding="utf-8")
    file = PrintFile("Parameter File", "KDX-08A2B", "axis1.prm")
    parameters = [Parameter(f"S-10{number}", name, "62.0", "40.0", "Hz")
                  for number, name in enumerate(language.parameters)]
    write_parameters(file, parameters, [], "\r\n".join(language.comment))
    path = host.temp_folder / "User.tmp"
    file.write(path, "utf-8")
    path.write_bytes(encoded(path.read_bytes().decode(), language.code_page))
    host.write_cover()
    options = host.options_file.read_bytes().decode("cp1252")
    for key, text in (("DrowCorp", language.company), ("DrowName", language.person), ("User1Corp", language.company),
                      ("User1Title", language.subject), ("User1Name", language.person),
                      ("Greeting", escaped("\r\n".join(language.greeting))),
                      ("UserHeader", "1,1,1,1,1," + language.title)):
        options = "".join(f"{key},{text}\r\n" if line.startswith(key + ",") else line + "\r\n"
                          for line in options.split("\r\n") if line)
    host.options_file.write_bytes(encoded(options, language.code_page))
