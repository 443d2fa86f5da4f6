CREATE TABLE customers (
    customer_id INTEGER PRIMARY KEY,
    customer VARCHAR(60) NOT NULL UNIQUE,
    contact VARCHAR(20),
    city VARCHAR(20) NOT NULL,
    phone VARCHAR(20),
    "credit limit ($)" NUMERIC(12,2),
    preferred BOOLEAN NOT NULL
);

CREATE TABLE products (
    product_id INTEGER PRIMARY KEY,
    product VARCHAR(60) NOT NULL UNIQUE,
    category VARCHAR(20) NOT NULL,
    "price ($)" NUMERIC(10,2) NOT NULL,
    stock INTEGER NOT NULL,
    discontinued BOOLEAN NOT NULL,
    picture BLOB
);

CREATE TABLE orders (
    order_id INTEGER PRIMARY KEY,
    ordered DATE NOT NULL,
    customer VARCHAR(60) NOT NULL REFERENCES customers (customer),
    product VARCHAR(60) NOT NULL REFERENCES products (product),
    quantity INTEGER NOT NULL,
    "price ($)" NUMERIC(10,2) NOT NULL,
    amount NUMERIC(12,2) NOT NULL,
    paid BOOLEAN NOT NULL,
    shipped TIMESTAMP,
    "ship city" VARCHAR(20) NOT NULL,
    notes TEXT
);
