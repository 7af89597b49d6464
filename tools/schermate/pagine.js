// Fills in the page for its picture: a woman of forty, and a day's meals where the page has them.
(function () {
    function premi(form, testo) {
        Array.from(form.elements).find(function (campo) {
            return campo.type === "button" && campo.value === testo;
        }).click();
    }
    function scegli(form, nome, alimento, grammi) {
        var elenco = form[nome];
        elenco.selectedIndex = Array.from(elenco.options).findIndex(function (voce) { return voce.text === alimento; });
        form[nome + "g"].value = grammi;
    }

    var fabbisogno = document.forms[0];
    fabbisogno.age.value = "40";
    fabbisogno.height.value = "165";
    fabbisogno.weight.value = "63";
    fabbisogno.R1[1].click();
    premi(fabbisogno, "Calcola");

    var giornata = document.forms[1];
    if (!giornata) {
        return;
    }
    [["A1", "Fette biscottate", 40], ["A2", "Kiwi", 100], ["A3", "Latte di vacca parzialmente scremato", 200],
     ["B1", "Arance", 150], ["B2", "Riso brillato", 80], ["B3", "Zucchine", 200], ["B4", "Merluzzo e nasello", 150],
     ["B5", "Pane integrale", 40], ["C1", "Mele", 150], ["C3", "Bresaola", 40], ["D3", "Spinaci", 200],
     ["D4", "Vitello", 120], ["D2", "Pane integrale", 50], ["D5", "Olio d'oliva", 10]].forEach(function (riga) {
        scegli(giornata, riga[0], riga[1], riga[2]);
    });
    premi(giornata, "Calcola");
})();
