#include "database/SampleWords.h"

using namespace Qt::StringLiterals;

namespace {

const SampleWords chineseWords{
    .fileName = u"sample.db"_s,
    .schema = u":/sample.sql"_s,
    .customers = u"客户"_s,
    .products = u"产品"_s,
    .orders = u"订单"_s,
    .statement = u"select * from 订单"_s,
    .partStatement = u"select 订单编号,下单日期,客户名称,产品名称,数量,金额 from 订单"_s,
    .customerName = u"%1%2%3"_s,
    .contactName = u"%1%2"_s,
    .cities = {u"北京"_s, u"上海"_s, u"广州"_s, u"深圳"_s, u"杭州"_s, u"南京"_s, u"成都"_s, u"武汉"_s,
               u"西安"_s, u"青岛"_s, u"厦门"_s, u"长沙"_s, u"天津"_s, u"苏州"_s, u"昆明"_s, u"大连"_s},
    .companies = {u"恒昌"_s, u"万通"_s, u"金桥"_s, u"华信"_s, u"明达"_s, u"宏远"_s, u"瑞丰"_s, u"天成"_s,
                  u"永利"_s, u"新宇"_s, u"东方"_s, u"海纳"_s, u"佳和"_s, u"同仁"_s, u"博雅"_s},
    .trades = {u"贸易有限公司"_s, u"百货公司"_s, u"食品商行"_s, u"超市"_s},
    .surnames = {u"王"_s, u"李"_s, u"张"_s, u"刘"_s, u"陈"_s, u"杨"_s, u"赵"_s, u"黄"_s, u"周"_s, u"吴"_s},
    .givenNames = {u"伟"_s, u"芳"_s, u"秀英"_s, u"敏"_s, u"静"_s, u"建国"_s, u"丽"_s, u"强"_s, u"晓明"_s},
    .notes = {u"请在上午送货"_s, u"需开增值税发票"_s, u"老客户，包装加固"_s, u"到货前电话联系"_s,
              u"货到付款"_s, u"与上一单合并发货"_s},
    .assortment =
        {
            {u"龙井茶 250克"_s, u"茶叶"_s, 12800},
            {u"铁观音 500克"_s, u"茶叶"_s, 16800},
            {u"普洱茶饼"_s, u"茶叶"_s, 23600},
            {u"茉莉花茶"_s, u"茶叶"_s, 4950},
            {u"东北大米 10千克"_s, u"粮油"_s, 7990},
            {u"花生油 5升"_s, u"粮油"_s, 11890},
            {u"手工挂面"_s, u"粮油"_s, 1250},
            {u"黑木耳"_s, u"干货"_s, 3880},
            {u"香菇"_s, u"干货"_s, 4520},
            {u"红枣 1千克"_s, u"干货"_s, 3600},
            {u"核桃仁"_s, u"干货"_s, 6800},
            {u"陈醋"_s, u"调味"_s, 1580},
            {u"豆瓣酱"_s, u"调味"_s, 1360},
            {u"生抽酱油"_s, u"调味"_s, 990},
            {u"青花瓷碗（六只）"_s, u"瓷器"_s, 19800},
            {u"紫砂壶"_s, u"瓷器"_s, 58000},
            {u"白瓷茶具"_s, u"瓷器"_s, 32600},
            {u"真丝围巾"_s, u"丝绸"_s, 26900},
            {u"丝绸被面"_s, u"丝绸"_s, 45900},
            {u"折扇"_s, u"工艺"_s, 8800},
            {u"剪纸画框"_s, u"工艺"_s, 5600},
            {u"毛笔套装"_s, u"文具"_s, 7200},
            {u"宣纸 100张"_s, u"文具"_s, 9600},
            {u"端砚"_s, u"文具"_s, 88000},
        },
};

const SampleWords englishWords{
    .fileName = u"sample-en.db"_s,
    .schema = u":/sample-en.sql"_s,
    .customers = u"customers"_s,
    .products = u"products"_s,
    .orders = u"orders"_s,
    .statement = u"select * from orders"_s,
    .partStatement = u"select order_id,ordered,customer,product,quantity,amount from orders"_s,
    .customerName = u"%2 %3, %1"_s,
    .contactName = u"%2 %1"_s,
    .cities = {u"Boston"_s, u"Chicago"_s, u"Denver"_s, u"Seattle"_s, u"Portland"_s, u"Austin"_s, u"Dallas"_s,
               u"Atlanta"_s, u"Memphis"_s, u"Phoenix"_s, u"Tampa"_s, u"Omaha"_s, u"Detroit"_s, u"Newark"_s,
               u"Tucson"_s, u"Buffalo"_s},
    .companies = {u"Evergreen"_s, u"Summit"_s, u"Harbor"_s, u"Bluebird"_s, u"Golden Gate"_s, u"Maple"_s,
                  u"Northern"_s, u"Lakeside"_s, u"Pioneer"_s, u"Sunrise"_s, u"Eastern"_s, u"Riverside"_s,
                  u"Orchard"_s, u"Liberty"_s, u"Crescent"_s},
    .trades = {u"Trading"_s, u"Stores"_s, u"Foods"_s, u"Markets"_s},
    .surnames = {u"Adams"_s, u"Brown"_s, u"Clark"_s, u"Davis"_s, u"Evans"_s, u"Foster"_s, u"Green"_s,
                 u"Harris"_s, u"Irwin"_s, u"Jones"_s},
    .givenNames = {u"Anna"_s, u"Ben"_s, u"Carol"_s, u"David"_s, u"Emma"_s, u"Frank"_s, u"Grace"_s, u"Henry"_s,
                   u"Julia"_s},
    .notes = {u"Deliver in the morning"_s, u"Invoice with tax number"_s,
              u"Regular customer, pack with care"_s, u"Call before delivery"_s, u"Cash on delivery"_s,
              u"Ship with the previous order"_s},
    .assortment =
        {
            {u"Dragon Well tea 250 g"_s, u"Tea"_s, 12800},
            {u"Iron Goddess tea 500 g"_s, u"Tea"_s, 16800},
            {u"Aged tea cake"_s, u"Tea"_s, 23600},
            {u"Jasmine tea"_s, u"Tea"_s, 4950},
            {u"Rice 10 kg"_s, u"Groceries"_s, 7990},
            {u"Peanut oil 5 l"_s, u"Groceries"_s, 11890},
            {u"Handmade noodles"_s, u"Groceries"_s, 1250},
            {u"Black mushrooms"_s, u"Dried goods"_s, 3880},
            {u"Shiitake mushrooms"_s, u"Dried goods"_s, 4520},
            {u"Red dates 1 kg"_s, u"Dried goods"_s, 3600},
            {u"Walnuts"_s, u"Dried goods"_s, 6800},
            {u"Dark vinegar"_s, u"Sauces"_s, 1580},
            {u"Bean paste"_s, u"Sauces"_s, 1360},
            {u"Soy sauce"_s, u"Sauces"_s, 990},
            {u"Porcelain bowls (6)"_s, u"Porcelain"_s, 19800},
            {u"Clay teapot"_s, u"Porcelain"_s, 58000},
            {u"White tea set"_s, u"Porcelain"_s, 32600},
            {u"Silk scarf"_s, u"Silk"_s, 26900},
            {u"Silk quilt cover"_s, u"Silk"_s, 45900},
            {u"Folding fan"_s, u"Crafts"_s, 8800},
            {u"Framed papercut"_s, u"Crafts"_s, 5600},
            {u"Brush set"_s, u"Stationery"_s, 7200},
            {u"Rice paper, 100 sheets"_s, u"Stationery"_s, 9600},
            {u"Ink stone"_s, u"Stationery"_s, 88000},
        },
};

} // namespace

const SampleWords &SampleWords::inLanguage(const QString &language)
{
    return language == u"en" ? englishWords : chineseWords;
}
