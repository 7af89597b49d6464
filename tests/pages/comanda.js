// Plays the steps of a test on the page as a person does, and leaves in the page what its fields held after each.
(function () {
    function campi(form, tipo) {
        return Array.from(form.elements).filter(function (campo) { return campo.type === tipo; });
    }
    function scrivi(campo, testo) {
        if (campo.type !== "select-one") {
            campo.value = testo;
            return;
        }
        // No food named is the first of the list.
        campo.selectedIndex = Array.from(campo.options).findIndex(function (voce) {
            return !testo || voce.text === testo;
        });
        if (campo.selectedIndex < 0) {
            throw new Error(campo.name + " non ha " + testo);
        }
    }
    function premi(form, testo) {
        campi(form, "button").find(function (bottone) { return bottone.value === testo; }).click();
    }
    function stato(form) {
        var valori = {};
        campi(form, "text").forEach(function (campo) { valori[campo.name] = campo.value; });
        campi(form, "radio").forEach(function (campo) {
            if (campo.checked) {
                valori[campo.name] = campo.value;
            }
        });
        return valori;
    }
    function esegui(passo) {
        var form = document.forms[passo.form];
        Object.keys(passo.scrivi).forEach(function (nome) { scrivi(form[nome], passo.scrivi[nome]); });
        Object.keys(passo.spunta).forEach(function (nome) { form[nome][passo.spunta[nome]].click(); });
        if (passo.premi) {
            premi(form, passo.premi);
        }
        return stato(form);
    }
    function elenchi() {
        var testi = {};
        document.querySelectorAll("select").forEach(function (elenco) {
            testi[elenco.name] = Array.from(elenco.options).map(function (voce) { return voce.text; });
        });
        return testi;
    }

    var risposta = document.createElement("pre");
    risposta.id = "risposta";
    risposta.textContent = encodeURIComponent(JSON.stringify({
        codifica: document.characterSet,
        elenchi: elenchi(),
        passi: JSON.parse(decodeURIComponent("PASSI")).map(esegui)
    }));
    document.body.appendChild(risposta);
    console.log("fine della prova");
})();
