#include "TovuDemoStorefront.h"

#include <QVariantList>

const TovuDemoStorefront &TovuDemoStorefront::freshBasket()
{
    static const TovuDemoStorefront content{
        .clock = QStringLiteral("9:41"),
        .appName = QStringLiteral("Fresh Basket"),
        .logo = QStringLiteral("\U0001F9FA"), // basket
        .avatar = QStringLiteral("A"),
        .greeting = QStringLiteral("Good evening, Ana"),
        .status = QStringLiteral("Your order is on its way."),
        .order = QStringLiteral("Order #1042 · 14 items"),
        .arrival = QStringLiteral("Arriving 18:40–19:00"),
        .vehicle = QStringLiteral("\U0001F69A"), // delivery truck
        .steps = {QStringLiteral("Packed"), QStringLiteral("On the way"), QStringLiteral("Delivered")},
        .currentStep = 1,
        .buyAgainTitle = QStringLiteral("Buy again"),
        .seeAll = QStringLiteral("See all"),
        .recentOrdersTitle = QStringLiteral("Recent orders"),
        .pastOrderIcon = QStringLiteral("\U0001F6CD"), // shopping bags
        .buyAgain = {{QStringLiteral("\U0001F951"), QStringLiteral("Avocados"), QStringLiteral("€2.49")},
                     {QStringLiteral("\U0001F353"), QStringLiteral("Berries"), QStringLiteral("€3.29")},
                     {QStringLiteral("\U0001F956"), QStringLiteral("Baguette"), QStringLiteral("€1.19")},
                     {QStringLiteral("\U0001F9C0"), QStringLiteral("Cheddar"), QStringLiteral("€2.99")}},
        .recentOrders = {{QStringLiteral("Order #1041 · 12 items"), QStringLiteral("Delivered Tue 3 Jun · €48.20")},
                         {QStringLiteral("Order #1037 · 8 items"), QStringLiteral("Delivered Sat 31 May · €31.75")},
                         {QStringLiteral("Order #1030 · 21 items"), QStringLiteral("Delivered Sat 24 May · €86.10")}},
        .tabs = {QStringLiteral("Home"), QStringLiteral("Search"), QStringLiteral("Basket"), QStringLiteral("Account")},
    };
    return content;
}

QVariantMap TovuDemoStorefront::toVariantMap() const
{
    QVariantList products;
    for (const Product &product : buyAgain)
        products << QVariantMap{{QStringLiteral("emoji"), product.emoji},
                                {QStringLiteral("name"), product.name},
                                {QStringLiteral("price"), product.price}};
    QVariantList orders;
    for (const PastOrder &past : recentOrders)
        orders << QVariantMap{{QStringLiteral("title"), past.title}, {QStringLiteral("detail"), past.detail}};
    return {{QStringLiteral("clock"), clock},
            {QStringLiteral("appName"), appName},
            {QStringLiteral("logo"), logo},
            {QStringLiteral("avatar"), avatar},
            {QStringLiteral("greeting"), greeting},
            {QStringLiteral("status"), status},
            {QStringLiteral("order"), order},
            {QStringLiteral("arrival"), arrival},
            {QStringLiteral("vehicle"), vehicle},
            {QStringLiteral("steps"), steps},
            {QStringLiteral("currentStep"), currentStep},
            {QStringLiteral("buyAgainTitle"), buyAgainTitle},
            {QStringLiteral("seeAll"), seeAll},
            {QStringLiteral("recentOrdersTitle"), recentOrdersTitle},
            {QStringLiteral("pastOrderIcon"), pastOrderIcon},
            {QStringLiteral("buyAgain"), products},
            {QStringLiteral("recentOrders"), orders},
            {QStringLiteral("tabs"), tabs}};
}
