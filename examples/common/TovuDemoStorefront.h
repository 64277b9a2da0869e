#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <vector>

/// What the host app's home screen shows: "Fresh Basket", a grocery-delivery
/// app, with an order on its way, things to buy again and past orders. Each
/// demo draws it with its own toolkit; the words and emoji are the same.
struct TovuDemoStorefront {
    struct Product {
        QString emoji, name, price;
    };
    struct PastOrder {
        QString title, detail;
    };

    QString clock, appName, logo, avatar, greeting, status;
    QString order, arrival, vehicle;
    /// The delivery's steps; the one at `currentStep` is under way.
    QStringList steps;
    int currentStep = 0;
    QString buyAgainTitle, seeAll, recentOrdersTitle, pastOrderIcon;
    std::vector<Product> buyAgain;
    std::vector<PastOrder> recentOrders;
    /// The tab bar's tabs; the first one is open.
    QStringList tabs;

    static const TovuDemoStorefront &freshBasket();
    /// The same for QML: the fields by name, products and orders as lists of maps.
    QVariantMap toVariantMap() const;
};
