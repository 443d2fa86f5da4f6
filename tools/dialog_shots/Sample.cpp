#include "Sample.h"

#include "language/Language.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A word that is part of another one comes after it.
const std::array translations{
    std::pair{u"订单编号"_s, u"order_id"_s},
    std::pair{u"下单日期"_s, u"ordered"_s},
    std::pair{u"客户编号"_s, u"customer_id"_s},
    std::pair{u"客户名称"_s, u"customer"_s},
    std::pair{u"产品编号"_s, u"product_id"_s},
    std::pair{u"产品名称"_s, u"product"_s},
    std::pair{u"数量"_s, u"quantity"_s},
    std::pair{u"单价(元)"_s, u"price ($)"_s},
    std::pair{u"金额"_s, u"amount"_s},
    std::pair{u"已付款"_s, u"paid"_s},
    std::pair{u"发货时间"_s, u"shipped"_s},
    std::pair{u"送货 城市"_s, u"ship city"_s},
    std::pair{u"备注"_s, u"notes"_s},
    std::pair{u"照片"_s, u"picture"_s},
    std::pair{u"订单"_s, u"orders"_s},
    std::pair{u"没有这个表"_s, u"no_such_table"_s},
    std::pair{u"同仁百货有限公司"_s, u" Crescent Stores"_s},
    std::pair{u"长沙新宇百货公司"_s, u"Sunrise Stores, Buffalo"_s},
    std::pair{u"杭州茶叶有限公司"_s, u"Portland Tea House"_s},
    std::pair{u"昆明食品行"_s, u"Tucson Foods"_s},
    std::pair{u"百货"_s, u"Stores"_s},
    std::pair{u"北京"_s, u"Boston"_s},
    std::pair{u"上海"_s, u"Chicago"_s},
    std::pair{u"广州"_s, u"Denver"_s},
    std::pair{u"深圳"_s, u"Seattle"_s},
    std::pair{u"杭州"_s, u"Portland"_s},
    std::pair{u"龙井茶 250克"_s, u"Dragon Well tea 250 g"_s},
    std::pair{u"龙井茶"_s, u"Dragon Well tea"_s},
    std::pair{u"普洱茶"_s, u"Aged tea cake"_s},
    std::pair{u"手工挂面"_s, u"Handmade noodles"_s},
    std::pair{u"青花瓷碗（六只）"_s, u"Porcelain bowls (6)"_s},
    std::pair{u"铁观音 500克"_s, u"Iron Goddess tea 500 g"_s},
    std::pair{u"宣纸 100张"_s, u"Rice paper, 100 sheets"_s},
    std::pair{u"折扇"_s, u"Folding fan"_s},
    std::pair{u"货到付款"_s, u"Cash on delivery"_s},
    std::pair{u"客户"_s, u"customer"_s},
    std::pair{u"明细"_s, u"lines"_s},
    std::pair{u"产品"_s, u"product"_s},
    std::pair{u"一百"_s, u"a hundred"_s},
    std::pair{u"网上商店"_s, u"Web shop"_s},
    std::pair{u"文档"_s, u"Documents"_s},
    std::pair{u"数据"_s, u"data"_s},
};

} // namespace

QString sample(QString text)
{
    if (KOVAVSFDataGridLib::Language::current() != "en"_L1)
        return text;
    for (const auto &[chinese, english] : translations)
        text.replace(chinese, english);
    return text;
}
